#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace linewright {

/** A picture in memory: a byte a pixel, 0 black to 255 white, rows from the top without padding. */
struct GreyRaster {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> pixels;

    std::uint8_t* Row(int y) { return pixels.data() + static_cast<std::ptrdiff_t>(y) * width; }
    const std::uint8_t* Row(int y) const {
        return pixels.data() + static_cast<std::ptrdiff_t>(y) * width;
    }
    std::uint8_t At(int x, int y) const { return Row(y)[x]; }
};

}  // namespace linewright
