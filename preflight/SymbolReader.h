#pragma once

#include <vector>

#include "preflight/Candidates.h"
#include "preflight/FoundSymbol.h"
#include "preflight/SymbolPattern.h"

namespace linewright {

/** A symbol in a picture whose rows cross its bars. */
struct RasterSymbol {
    Symbology symbology = Symbology::kText;
    Reading reading;
    /** Of the bars as far as their rows are alike, in pixels. */
    PixelBox box;
    bool isReversed = false;
    /** Whether the bars are as the symbology has them. */
    bool isConfirmed = false;
    bool isDoubtful = false;
};

/** Finds and reads all symbols whose bars are crossed along the rows of a picture, by other
 *  people's scanners and by the decoders for postal symbols and MSI, and paints over what it has
 *  read. `isTurned` says that the rows are a page's columns. */
std::vector<RasterSymbol> ReadSymbols(GreyRaster& picture, double pixelsPerMillimetre,
                                      bool isTurned);

/** What is looked for along a line of a symbol that was read. */
PatternQuery QueryOf(Symbology symbology, const Reading& reading);

/** Finds a symbol that was read among the elements of a line, between two positions in mm. */
std::optional<SymbolPattern> PatternIn(const LineScan& scan, const PatternQuery& query,
                                       double begin, double end);

}  // namespace linewright
