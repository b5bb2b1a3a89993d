#pragma once

#include <vector>

namespace linewright {

struct Point {
    double x = 0;
    double y = 0;
};

struct Rectangle {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    double Height() const { return bottom - top; }
};

/** A step of a contour that is closed before the next kMove; curves are of the second degree. */
struct PathStep {
    enum class Kind { kMove, kLine, kCurve };

    Kind kind{};
    Point control{};
    Point end{};
};

/** A glyph of a font and where it stands. */
struct PlacedGlyph {
    unsigned int index = 0;
    double x = 0;
    double y = 0;
};

/** Contours, filled where their winding is not zero. */
using Outline = std::vector<PathStep>;

/** What is black in a picture, from its upper left corner, y downwards. */
struct Shapes {
    /** How long 1 is, in points. */
    double unit = 0;
    double width = 0;
    double height = 0;
    std::vector<Rectangle> bars{};
    /** Digits, text and marks. */
    Outline outline{};
};

/** The control points of the same curve as one of the third degree. */
inline Point CubicControl(Point end, Point control) {
    return {(end.x + 2 * control.x) / 3, (end.y + 2 * control.y) / 3};
}

}  // namespace linewright
