#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "preflight/Area.h"
#include "render/Shapes.h"

namespace linewright {

/** A straight piece of an outline, in mm. */
struct Segment {
    Point from;
    Point to;
};

/** Something that is painted: an outline filled with one colour, or what is no colour alone. */
struct PaintedShape {
    Area area;
    std::vector<Segment> outline;
    /** Those of its contours that are upright rectangles. */
    std::vector<Area> rectangles;
    bool isEvenOdd = false;
    /** What the paint leaves of red light, 0 to 1, and how much it covers. */
    double reflectance = 0;
    double opacity = 1;
    /** A picture, a gradient, a mask: its colour is not known. */
    bool isUnknown = false;
    /** "#rrggbb". */
    unsigned colour = 0;
};

/** A stretch of a line across a page that looks the same along it. */
struct Stretch {
    double begin = 0;
    double end = 0;
    double reflectance = 1;
    bool isUnknown = false;
    unsigned colour = 0xFFFFFF;
};

/** What a page paints, from the first shape to the one that lies upon all. */
struct VectorPage {
    std::vector<PaintedShape> shapes;

    /** What a horizontal line, or in a page with x and y exchanged a vertical one, meets at `y`
     *  between `begin` and `end`: stretches without a gap. */
    std::vector<Stretch> Along(double y, double begin, double end, bool isTurned) const;
};

/** How an SVG file's units lie on the page. */
struct PageScale {
    double unitsPerMillimetre = 72 / 25.4;
    /** Where the page's corner lies, in units. */
    double left = 0;
    double top = 0;
};

/** Reads the shapes of an SVG file as Cairo writes them. Throws Failure for what is none, or has
 *  more shapes than can be looked at. */
VectorPage ReadSvg(std::string_view svg, const PageScale& scale);

}  // namespace linewright
