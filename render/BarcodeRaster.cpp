#include <freetype/ftoutln.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstddef>

#include "render/BarcodeDrawing.h"
#include "render/CairoPage.h"
#include "render/FreeType.h"

namespace linewright {

namespace {

// Cairo paints with pixman, which does not say when it had no memory: pictures that are to be
// relied on are painted by hand and by FreeType.

/** FreeType's pictures end at 32,767 pixels: larger ones are put together. */
constexpr int kTile = 16384;
constexpr int kMostPixels = 1 << 28;

/** Contours for FreeType, which has y upwards and 64 parts a pixel. */
struct Contours {
    std::vector<FT_Vector> points;
    std::vector<char> tags;
    std::vector<short> ends;

    void Add(Point point, double left, double bottom, char tag) {
        points.push_back(
            {std::lround((point.x - left) * 64), std::lround((bottom - point.y) * 64)});
        tags.push_back(tag);
    }
};

/** The contours that reach into a tile. */
Contours ContoursIn(const Outline& outline, double left, double top, double width, double height) {
    Contours contours;
    const PathStep* const end = outline.data() + outline.size();
    for (const PathStep* first = outline.data(); first != end;) {
        const PathStep* const last = std::find_if(first + 1, end, [](const PathStep& step) {
            return step.kind == PathStep::Kind::kMove;
        });
        const auto [low, high] = std::minmax_element(
            first, last, [](const auto& a, const auto& b) { return a.end.x < b.end.x; });
        const auto [above, below] = std::minmax_element(
            first, last, [](const auto& a, const auto& b) { return a.end.y < b.end.y; });
        if (low->end.x < left + width && high->end.x > left && above->end.y < top + height &&
            below->end.y > top) {
            for (const PathStep* step = first; step != last; ++step) {
                if (step->kind == PathStep::Kind::kCurve) {
                    contours.Add(step->control, left, top + height, FT_CURVE_TAG_CONIC);
                }
                contours.Add(step->end, left, top + height, FT_CURVE_TAG_ON);
            }
            contours.ends.push_back(static_cast<short>(contours.points.size() - 1));
        }
        first = last;
    }
    return contours;
}

/** A part of a picture. */
struct Tile {
    int left, top, width, height;
};

/** Puts the ink of contours, 0 to 255, into a tile. */
FT_Error Paint(Contours& contours, GreyRaster& raster, const Tile& tile) {
    if (contours.points.size() > SHRT_MAX) return FT_Err_Raster_Overflow;
    FT_Outline shape{};
    shape.n_contours = static_cast<short>(contours.ends.size());
    shape.n_points = static_cast<short>(contours.points.size());
    shape.points = contours.points.data();
    shape.tags = contours.tags.data();
    shape.contours = contours.ends.data();
    FT_Bitmap bitmap{};
    bitmap.rows = static_cast<unsigned int>(tile.height);
    bitmap.width = static_cast<unsigned int>(tile.width);
    bitmap.pitch = raster.width;
    bitmap.buffer = raster.Row(tile.top) + tile.left;
    bitmap.num_grays = 256;
    bitmap.pixel_mode = FT_PIXEL_MODE_GRAY;
    return FT_Outline_Get_Bitmap(FreeTypeLibrary(), &shape, &bitmap);
}

/** Puts the ink of an outline into a tile, or where FreeType finds too much in it, into its halves.
 */
void PaintTile(const Outline& outline, GreyRaster& raster, const Tile& tile) {
    const auto [left, top, width, height] = tile;
    Contours contours = ContoursIn(outline, left, top, width, height);
    if (contours.ends.empty()) return;
    const FT_Error error = Paint(contours, raster, tile);
    if (error == FT_Err_Raster_Overflow && width > 1) {
        const int half = width / 2;
        PaintTile(outline, raster, {left, top, half, height});
        PaintTile(outline, raster, {left + half, top, width - half, height});
        return;
    }
    CheckFreeType(error);
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
            PaintTile(shapes.outline, raster,
                      {left, top, std::min(kTile, raster.width - left),
                       std::min(kTile, raster.height - top)});
        }
    }
    for (const Rectangle& bar : shapes.bars) {
        for (int y = static_cast<int>(bar.top); y < static_cast<int>(bar.bottom); ++y) {
            std::fill(raster.Row(y) + static_cast<int>(bar.left),
                      raster.Row(y) + static_cast<int>(bar.right), std::uint8_t{255});
        }
    }
    for (std::uint8_t& pixel : raster.pixels) pixel = static_cast<std::uint8_t>(255 - pixel);
    return raster;
}

}  // namespace linewright
