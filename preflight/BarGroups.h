#pragma once

#include <optional>
#include <vector>

#include "preflight/VectorPage.h"
#include "render/GreyRaster.h"

namespace linewright {

/** Upright sides of shapes that are as high as each other and stand as bars do, whether they are
 *  seen or something lies upon them. */
struct BarGroup {
    /** In mm, in the direction of the bars: with x and y exchanged for bars that lie. */
    Area area;
    /** The sides' places, from left to right. */
    std::vector<double> sides;
    /** A narrow element's width, in mm. */
    double narrow = 0;
    /** Where the bars end with longer ones at their ends, as EAN and UPC have them. */
    double left = 0;
    double right = 0;
};

/** Finds groups of nine bars and more that differ in their widths or distances. */
std::vector<BarGroup> FindBarGroups(const VectorPage& page, bool isTurned);

/** How much of a group's sides is seen on the page, 0 to 1. */
double SeenPart(const VectorPage& page, const BarGroup& group, bool isTurned);

/** What is seen of a group as a picture in which a narrow element has `kGroupPixels` pixels, with
 *  what stands beside it or, where it is to be alone, with white; none where it would be too
 *  large. */
std::optional<GreyRaster> PictureOf(const VectorPage& page, const BarGroup& group, bool isTurned,
                                    bool isAlone);
inline constexpr double kGroupPixels = 4;

}  // namespace linewright
