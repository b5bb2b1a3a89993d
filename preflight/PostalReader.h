#pragma once

#include <vector>

#include "render/GreyRaster.h"

namespace linewright {

struct RasterSymbol;

/** Reads Intelligent Mail and Postnet symbols whose bars are crossed along the rows of a picture,
 *  either way up: bars of one width at one distance, 65 of four kinds or 5n + 2 of two.
 *  `isTurned` says that the rows are a page's columns, so that up and down are exchanged. */
std::vector<RasterSymbol> ReadPostal(const GreyRaster& picture, double pixelsPerMillimetre,
                                     bool isTurned);

}  // namespace linewright
