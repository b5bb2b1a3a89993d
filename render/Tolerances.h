#pragma once

#include <optional>
#include <vector>

#include "render/DrawingWarning.h"
#include "types/BarcodeType.h"

namespace linewright {

/** What a drawing's standard has something to say about. */
struct DrawnSizes {
    /** In points. */
    double xDimension;
    /** In points: the bars', and from the first bar to the last. */
    double barHeight;
    double length;
    /** In modules; none where it was left to the standard. */
    std::optional<double> quietZone;
    double standardQuietLeft;
    double standardQuietRight;
    /** In points. */
    double reduction;
    bool hasResolution;
};

/** How a barcode's sizes depart from its standard. */
std::vector<DrawingWarning> WarningsOf(const BarcodeType& type, const DrawnSizes& sizes);

/** A length in points as millimetres, with two digits behind the point or as many as asked for. */
std::string Millimetres(double points, int digits = 2);

}  // namespace linewright
