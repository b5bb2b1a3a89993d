#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "render/Shapes.h"

namespace linewright {

/** A contour as its corners, curves in straight pieces. */
using Contour = std::vector<Point>;

/** A transformation of the plane: x' = xx x + xy y + x0, y' = yx x + yy y + y0. */
struct Transform {
    double xx = 1, yx = 0, xy = 0, yy = 1, x0 = 0, y0 = 0;

    Point operator()(Point point) const {
        return {xx * point.x + xy * point.y + x0, yx * point.x + yy * point.y + y0};
    }
    /** This one behind another. */
    Transform After(const Transform& first) const;
    /** How much longer it makes lengths, on the whole. */
    double Scale() const;
};

/** Takes the next number of a list, with the blanks and commas in front of it; none where there is
 *  no finite one, nor one whose size is beyond any page's. */
std::optional<double> TakeNumber(std::string_view& list);

/** Reads path data of absolute moves, lines and cubic curves, as Cairo writes them; none for
 *  anything else. */
std::optional<std::vector<Contour>> ReadPathData(std::string_view data);

/** Reads "matrix(…)" or "translate(…)"; none for anything else. */
std::optional<Transform> ReadTransform(std::string_view text);

}  // namespace linewright
