#pragma once

#include <algorithm>
#include <limits>
#include <optional>
#include <vector>

#include "render/GreyRaster.h"
#include "scanners/Reading.h"
#include "types/BarcodeType.h"

namespace linewright {

/** A symbol that a scanner came upon without being told what to look for. */
struct SpottedSymbol {
    Reading reading;
    Symbology symbology = Symbology::kText;
    /** About where it was read, in pixels: the ends can lie a little inside of the bars. */
    int left = std::numeric_limits<int>::max();
    int top = std::numeric_limits<int>::max();
    int right = std::numeric_limits<int>::min();
    int bottom = std::numeric_limits<int>::min();

    void Include(int x, int y) {
        left = std::min(left, x);
        right = std::max(right, x);
        top = std::min(top, y);
        bottom = std::max(bottom, y);
    }
};

// Both look along the rows of a picture for all symbologies that they know, add-ons left aside.
// Symbols with the same data are one to ZBar, and where the data stands twice in a picture
// ZXing-C++ 1.4 is not to be asked for all of them: each is to be shown a part of a page with one.

std::vector<SpottedSymbol> SpotWithZbar(const GreyRaster& picture);
/** `isLocal` sets bright from dark by the surroundings of each pixel. */
std::optional<SpottedSymbol> SpotWithZxing(const GreyRaster& picture, bool isLocal);

}  // namespace linewright
