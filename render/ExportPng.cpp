#include <png.h>

#include <cmath>
#include <csetjmp>
#include <new>

#include "render/BitRows.h"
#include "render/Export.h"

namespace linewright {

namespace {

constexpr double kMetre = kInch / 0.0254;
constexpr png_uint_32 kLongestSide = 0x7FFFFFFF;

/** What libpng writes to, and its words when it cannot. */
struct Target {
    std::string file;
    std::string trouble;
};

void Write(png_structp png, png_bytep bytes, std::size_t count) {
    bool isWritten = true;
    try {
        static_cast<Target*>(png_get_io_ptr(png))
            ->file.append(reinterpret_cast<const char*>(bytes), count);
    } catch (const std::bad_alloc&) {
        isWritten = false;
    }
    if (!isWritten) png_error(png, "no memory");
}

[[noreturn]] void Fail(png_structp png, png_const_charp words) {
    try {
        static_cast<Target*>(png_get_error_ptr(png))->trouble = words;
    } catch (const std::bad_alloc&) {
        // The jump itself says that it failed.
    }
    png_longjmp(png, 1);
}

/** Nothing here has a destructor: libpng leaves it by a jump. */
bool WriteAll(png_structp png, png_infop info, const GreyRaster& raster, png_uint_32 perMetre,
              int depth, const std::uint8_t* rows, std::size_t rowBytes) {
    // NOLINTNEXTLINE(cert-err52-cpp): the library's own way
    if (setjmp(png_jmpbuf(png)) != 0) return false;
    png_set_user_limits(png, kLongestSide, kLongestSide);
    png_set_IHDR(png, info, static_cast<png_uint_32>(raster.width),
                 static_cast<png_uint_32>(raster.height), depth, PNG_COLOR_TYPE_GRAY,
                 PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_pHYs(png, info, perMetre, perMetre, PNG_RESOLUTION_METER);
    png_write_info(png, info);
    for (int y = 0; y < raster.height; ++y) {
        png_write_row(png, rows + static_cast<std::size_t>(y) * rowBytes);
    }
    png_write_end(png, info);
    return true;
}

std::vector<std::uint8_t> RowsOf(const GreyRaster& raster) {
    std::vector<std::uint8_t> rows;
    for (int y = 0; y < raster.height; ++y) {
        const std::vector<std::uint8_t> bits = BitsOfRow(raster, y, false);
        rows.insert(rows.end(), bits.begin(), bits.end());
    }
    return rows;
}

}  // namespace

std::string PngOf(const BarcodeDrawing& drawing, const ExportOptions& options) {
    const double pixels = PixelsPerModule(drawing, options.pixelsPerModule);
    const GreyRaster raster = drawing.Raster(pixels);
    const std::vector<std::uint8_t> rows = options.isGrey ? raster.pixels : RowsOf(raster);
    const auto perMetre =
        static_cast<png_uint_32>(std::lround(DotsPerInch(drawing, pixels) / kInch * kMetre));
    Target target;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, &target, Fail, nullptr);
    png_infop info = png == nullptr ? nullptr : png_create_info_struct(png);
    bool isWritten = false;
    if (info != nullptr) {
        png_set_write_fn(png, &target, Write, nullptr);
        isWritten = WriteAll(png, info, raster, perMetre, options.isGrey ? 8 : 1, rows.data(),
                             rows.size() / static_cast<std::size_t>(raster.height));
    }
    png_destroy_write_struct(&png, &info);
    if (isWritten) return target.file;
    throw DrawingFailure(DrawingProblem::Reason::kLibrary, {"libpng, " + target.trouble});
}

}  // namespace linewright
