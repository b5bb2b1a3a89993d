#pragma once

#include <string>
#include <vector>

namespace linewright {

/** Why a drawing cannot be made. The parameters, UTF-8, fill a door's sentence in the order in
 * which they stand here. */
struct DrawingProblem {
    enum class Reason {
        /** A font is not there or cannot be read: its file. */
        kNoFont,
        /** A font has not the axes that a shape needs: its file. */
        kNoAxes,
        /** Postal bars have the heights that their standard gives. */
        kFixedHeight,
        /** Bars cannot be so high at this X-dimension: the least and the largest height in mm. */
        kHeight,
        /** Bars cannot be so much narrower: the largest reduction in per cent of the narrowest. */
        kReduction,
    };

    Reason reason{};
    std::vector<std::string> parameters{};
};

}  // namespace linewright
