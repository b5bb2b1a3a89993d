#pragma once

#include <vector>

#include "render/GreyRaster.h"

namespace linewright {

struct RasterSymbol;

/** Reads MSI symbols whose bars are crossed along the rows of a picture. */
std::vector<RasterSymbol> ReadMsi(const GreyRaster& picture, double pixelsPerMillimetre);

}  // namespace linewright
