#pragma once

#include <optional>
#include <vector>

#include "preflight/LineScan.h"
#include "preflight/SymbolPattern.h"

namespace linewright {

/** The parts of a grade after ISO/IEC 15416, as the document gives them: values 0 to 1, and the
 *  grade 0 to 4 of all. No press has printed it, so that it is the best that can come. */
struct GradeParts {
    double symbolContrast = 0;
    double edgeContrast = 0;
    double modulation = 0;
    double defects = 0;
    /** None where there are too few pixels a module to tell. */
    std::optional<double> decodability{};
    double grade = 0;
};

/** What is measured of a symbol. */
struct Measures {
    /** The narrowest element's width in mm. */
    double xDimension = 0;
    /** Of symbologies with two widths, wide elements to narrow ones. */
    std::optional<double> ratio{};
    /** White beside the outermost bars in X-dimensions, in the symbol's own direction. */
    double quietLeft = 0;
    double quietRight = 0;
    /** How much wider than they should be bars are on the average, in X-dimensions. */
    double barGain = 0;
    std::optional<GradeParts> parts{};
    /** In mm along the line. */
    double begin = 0;
    double end = 0;
    /** Whether shapes were measured, and not pixels. */
    bool isExact = false;
    std::optional<unsigned> barColour{};
    std::optional<unsigned> spaceColour{};
};

/** A line across a symbol with what it meets. */
struct SymbolLine {
    LineScan scan;
    SymbolPattern pattern;
};

/** What lines are made of. */
enum class LineSource {
    kShapes,
    /** Enough pixels a module for a grade. */
    kManyPixels,
    kFewPixels,
};

/** Measures a symbol by one or more lines across it: widths and reflectances on the average; quiet
 *  zones of shapes where they are smallest, of pixels, which may have a speck, on most lines. */
Measures MeasureLines(const std::vector<SymbolLine>& lines, LineSource source);

}  // namespace linewright
