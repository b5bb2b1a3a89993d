#pragma once

#include <algorithm>

namespace linewright {

/** A part of a page, in mm from its upper left corner. */
struct Area {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    double Width() const { return right - left; }
    double Height() const { return bottom - top; }
    bool IsEmpty() const { return !(right > left && bottom > top); }
    bool Overlaps(const Area& other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
    /** With x and y exchanged, as a page is seen whose symbols stand upright. */
    Area Turned() const { return {top, left, bottom, right}; }
};

inline Area Common(const Area& a, const Area& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

}  // namespace linewright
