#pragma once

#include <string>
#include <vector>

namespace linewright {

/** A drawing that is made all the same although its standard, or a press, would have it otherwise.
 *  The parameters fill a door's sentence in the order in which they stand here; lengths in mm. */
struct DrawingWarning {
    enum class Kind {
        /** The X-dimension lies outside the symbology's range: it, the least and the largest. */
        kXDimension,
        /** Postal bars stand too close or too far apart: bars an inch, the least and the most. */
        kPostalPitch,
        /** Less white than the standard's beside the bars: that in X-dimensions, left and right. */
        kQuietZone,
        /** Bars lower than their standard's for this width: their height and the least. */
        kLowBars,
        /** The reduction is no whole number of dots at 600 dpi, and no resolution was given. */
        kReductionLost,
    };

    Kind kind{};
    std::vector<std::string> parameters{};

    bool operator==(const DrawingWarning&) const = default;
};

}  // namespace linewright
