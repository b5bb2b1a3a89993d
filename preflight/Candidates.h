#pragma once

#include <vector>

#include "render/GreyRaster.h"

namespace linewright {

/** A part of a picture, in pixels; right and bottom lie outside. */
struct PixelBox {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
};

/** Where bars may stand that are crossed along the rows of a picture: where much changes along the
 *  rows and little across them. */
std::vector<PixelBox> FindCandidates(const GreyRaster& picture, double pixelsPerMillimetre);

/** A part of a picture, white where it reaches beyond. */
GreyRaster Cropped(const GreyRaster& picture, const PixelBox& box);
/** A picture with rows and columns exchanged. */
GreyRaster Turned(const GreyRaster& picture);

}  // namespace linewright
