#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "preflight/VectorPage.h"

namespace linewright {

/** A bar or a space along a line. Positions are in mm, reflectances 0 to 1. */
struct Element {
    double begin = 0;
    double end = 0;
    double darkest = 1;
    double lightest = 0;
    /** How far a spot inside stands out from what lies on both sides of it. */
    double unevenness = 0;

    double Width() const { return end - begin; }
};

/** What a line across a page meets: spaces and bars in turns, a space first and last, which ends
 *  where the line does. */
struct LineScan {
    std::vector<Element> elements;
    /** Of the part that the threshold was found in. */
    double darkest = 1;
    double lightest = 0;
    /** The colours of the first bar met there and of the space around, where they are known. */
    std::optional<unsigned> barColour{};
    std::optional<unsigned> spaceColour{};
    /** Whether something lies in that part whose colour is not known. */
    bool isUnknown = false;
};

/** Sets bars from spaces at the middle between the darkest and the lightest of what lies between
 *  `begin` and `end`. */
LineScan ScanStretches(const std::vector<Stretch>& stretches, double begin, double end);

/** The same of a row of pixels, the first of which begins at `origin`. */
LineScan ScanPixels(const std::uint8_t* pixels, int count, double origin,
                    double pixelsPerMillimetre, double begin, double end);

}  // namespace linewright
