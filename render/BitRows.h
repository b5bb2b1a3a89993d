#pragma once

#include <cstdint>
#include <vector>

#include "render/GreyRaster.h"

namespace linewright {

/** A row of a picture at one bit a pixel, the first one highest; `inkBit` is what stands for black,
 *  and what is darker than the middle grey is black. */
inline std::vector<std::uint8_t> BitsOfRow(const GreyRaster& raster, int y, bool inkBit) {
    std::vector<std::uint8_t> bits((static_cast<std::size_t>(raster.width) + 7) / 8);
    for (int x = 0; x < raster.width; ++x) {
        if ((raster.At(x, y) < 128) != inkBit) continue;
        bits[static_cast<std::size_t>(x) / 8] |= static_cast<std::uint8_t>(0x80 >> x % 8);
    }
    return bits;
}

}  // namespace linewright
