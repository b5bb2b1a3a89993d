#include "render/Export.h"

#include <cairo/cairo-pdf.h>
#include <cairo/cairo-ps.h>
#include <cairo/cairo-svg.h>
#include <zlib.h>

#include <cmath>

#include "render/PdfForPress.h"

namespace linewright {

namespace {

cairo_status_t Append(void* file, const unsigned char* bytes, unsigned int count) {
    static_cast<std::string*>(file)->append(reinterpret_cast<const char*>(bytes), count);
    return CAIRO_STATUS_SUCCESS;
}

using MakeSurface = cairo_surface_t*(cairo_write_func_t, void*, double, double);

std::string Exported(const BarcodeDrawing& drawing, MakeSurface makeSurface,
                     BarcodeDrawing::Form form, void (*prepare)(cairo_surface_t*) = nullptr) {
    std::string file;
    cairo_surface_t* const surface = makeSurface(Append, &file, drawing.Width() * drawing.Module(),
                                                 drawing.Height() * drawing.Module());
    if (prepare != nullptr) prepare(surface);
    cairo_t* const context = cairo_create(surface);
    cairo_scale(context, drawing.Module(), drawing.Module());
    drawing.Paint(context, form);
    cairo_destroy(context);
    cairo_surface_finish(surface);
    cairo_surface_destroy(surface);
    return file;
}

std::string BigEndian(std::uint32_t number) {
    std::string bytes;
    for (const int shift : {24, 16, 8, 0}) bytes += static_cast<char>(number >> shift & 0xFF);
    return bytes;
}

/** The chunk that gives a PNG its resolution (ISO/IEC 15948, 11.3.5.3). */
std::string ResolutionChunk(double dotsPerInch) {
    const auto perMetre = static_cast<std::uint32_t>(std::lround(dotsPerInch / 0.0254));
    const std::string content = "pHYs" + BigEndian(perMetre) + BigEndian(perMetre) + '\1';
    const uLong check =
        crc32(0, reinterpret_cast<const Bytef*>(content.data()), static_cast<uInt>(content.size()));
    return BigEndian(9) + content + BigEndian(static_cast<std::uint32_t>(check));
}

}  // namespace

std::string PdfOf(const BarcodeDrawing& drawing) {
    return PdfForPress(
        Exported(drawing, cairo_pdf_surface_create_for_stream, drawing.NaturalForm()));
}

std::string EpsOf(const BarcodeDrawing& drawing) {
    return Exported(drawing, cairo_ps_surface_create_for_stream, drawing.NaturalForm(),
                    [](cairo_surface_t* surface) { cairo_ps_surface_set_eps(surface, 1); });
}

std::string SvgOf(const BarcodeDrawing& drawing) {
    return Exported(drawing, cairo_svg_surface_create_for_stream, BarcodeDrawing::Form::kPaths);
}

std::string PngOf(const BarcodeDrawing& drawing, int pixelsPerModule) {
    const GreyRaster raster = drawing.Raster(pixelsPerModule);
    // An alpha-only picture is written as grey, its alpha as the brightness.
    cairo_surface_t* const surface =
        cairo_image_surface_create(CAIRO_FORMAT_A8, raster.width, raster.height);
    unsigned char* const pixels = cairo_image_surface_get_data(surface);
    const int rowBytes = cairo_image_surface_get_stride(surface);
    for (int y = 0; y < raster.height; ++y) {
        for (int x = 0; x < raster.width; ++x) {
            pixels[static_cast<std::ptrdiff_t>(y) * rowBytes + x] = raster.At(x, y);
        }
    }
    cairo_surface_mark_dirty(surface);
    std::string file;
    cairo_surface_write_to_png_stream(surface, Append, &file);
    cairo_surface_destroy(surface);
    constexpr std::size_t kAfterHeader = 8 + 25;
    if (file.size() > kAfterHeader) {
        file.insert(kAfterHeader, ResolutionChunk(DotsPerInch(drawing, pixelsPerModule)));
    }
    return file;
}

double PixelsPerModule(const BarcodeDrawing& drawing, double dotsPerInch) {
    return drawing.Module() / kInch * dotsPerInch;
}

int WholePixelsPerModule(const BarcodeDrawing& drawing, double dotsPerInch) {
    const int step = drawing.HasHalfModules() ? 2 : 1;
    const double steps = PixelsPerModule(drawing, dotsPerInch) / step;
    return step * std::max(1, static_cast<int>(std::lround(steps)));
}

double DotsPerInch(const BarcodeDrawing& drawing, int pixelsPerModule) {
    return pixelsPerModule / drawing.Module() * kInch;
}

}  // namespace linewright
