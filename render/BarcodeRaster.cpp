#include <algorithm>
#include <cmath>
#include <cstddef>

#include "render/BarcodeDrawing.h"
#include "render/CairoPage.h"

namespace linewright {

namespace {

/** Cairo's pictures end at 32,767 pixels: larger ones are put together. */
constexpr int kTile = 16384;
constexpr double kMostPixels = 1 << 28;

/** Paints the part of shapes that begins at (left, top) and copies it into the picture. */
void PaintTile(const Shapes& shapes, GreyRaster& raster, int left, int top) {
    const int width = std::min(kTile, raster.width - left);
    const int height = std::min(kTile, raster.height - top);
    CairoPage page(cairo_image_surface_create(CAIRO_FORMAT_A8, width, height));
    cairo_translate(page.Context(), -left, -top);
    FillShapes(page.Context(), shapes);
    CheckCairo(cairo_status(page.Context()));
    cairo_surface_flush(page.Surface());
    const unsigned char* const ink = cairo_image_surface_get_data(page.Surface());
    const int rowBytes = cairo_image_surface_get_stride(page.Surface());
    for (int y = 0; y < height; ++y) {
        const unsigned char* const row = ink + static_cast<std::ptrdiff_t>(y) * rowBytes;
        std::transform(row, row + width, raster.Row(top + y) + left,
                       [](unsigned char black) { return static_cast<std::uint8_t>(255 - black); });
    }
}

}  // namespace

void BarcodeDrawing::PaintArgb(std::uint32_t* pixels, int pictureWidth, int pictureHeight,
                               int rowBytes, double pixelsPerModule, double x, double y) const {
    CairoPage page(cairo_image_surface_create_for_data(reinterpret_cast<unsigned char*>(pixels),
                                                       CAIRO_FORMAT_ARGB32, pictureWidth,
                                                       pictureHeight, rowBytes));
    cairo_translate(page.Context(), x, y);
    FillShapes(page.Context(), InDots(pixelsPerModule));
    page.Finish();
}

GreyRaster BarcodeDrawing::Raster(double pixelsPerModule) const {
    const double most = kMostPixels;
    if (!(std::ceil(width * pixelsPerModule) * std::ceil(height * pixelsPerModule) <= most)) {
        throw DrawingFailure(DrawingProblem::Reason::kPicture,
                             {std::to_string(static_cast<int>(most))});
    }
    const Shapes shapes = InDots(pixelsPerModule);
    GreyRaster raster{static_cast<int>(shapes.width), static_cast<int>(shapes.height), {}};
    raster.pixels.resize(static_cast<std::size_t>(raster.width) *
                         static_cast<std::size_t>(raster.height));
    for (int top = 0; top < raster.height; top += kTile) {
        for (int left = 0; left < raster.width; left += kTile) {
            PaintTile(shapes, raster, left, top);
        }
    }
    return raster;
}

}  // namespace linewright
