#pragma once

#include <vector>

#include "preflight/Candidates.h"
#include "render/GreyRaster.h"

namespace linewright {

/** Bars of one width, each at the same distance behind the last, from left to right. */
using BarChain = std::vector<PixelBox>;

/** Finds chains of upright bars that stand alone, of which each is much higher than wide. */
std::vector<BarChain> FindBarChains(const GreyRaster& picture, double pixelsPerMillimetre);

}  // namespace linewright
