#include <tiffio.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <memory>
#include <new>

#include "render/BitRows.h"
#include "render/Export.h"

namespace linewright {

namespace {

/** A file in memory, as libtiff reads and writes one, and its words when it cannot. */
struct Target {
    std::string file;
    std::size_t place = 0;
    std::string trouble;
};

Target& TargetOf(thandle_t handle) {
    return *static_cast<Target*>(handle);
}

tmsize_t Read(thandle_t handle, void* bytes, tmsize_t count) {
    Target& target = TargetOf(handle);
    const std::size_t left = target.file.size() - std::min(target.place, target.file.size());
    const std::size_t read = std::min(left, static_cast<std::size_t>(count));
    std::memcpy(bytes, target.file.data() + target.place, read);
    target.place += read;
    return static_cast<tmsize_t>(read);
}

tmsize_t Write(thandle_t handle, void* bytes, tmsize_t count) {
    Target& target = TargetOf(handle);
    const auto size = static_cast<std::size_t>(count);
    try {
        target.file.resize(std::max(target.file.size(), target.place + size));
    } catch (const std::bad_alloc&) {
        return -1;
    }
    std::memcpy(target.file.data() + target.place, bytes, size);
    target.place += size;
    return count;
}

toff_t Seek(thandle_t handle, toff_t offset, int from) {
    Target& target = TargetOf(handle);
    const std::size_t start = from == SEEK_SET   ? 0
                              : from == SEEK_CUR ? target.place
                                                 : target.file.size();
    target.place = start + static_cast<std::size_t>(offset);
    return target.place;
}

int TakeDown(TIFF*, void* target, const char*, const char* words, va_list arguments) {
    std::array<char, 256> text{};
    std::vsnprintf(text.data(), text.size(), words, arguments);
    try {
        static_cast<Target*>(target)->trouble = text.data();
    } catch (const std::bad_alloc&) {
        // The call itself says that it failed.
    }
    return 1;
}

using OpenFile = std::unique_ptr<TIFF, decltype(&TIFFCleanup)>;

OpenFile Open(Target& target) {
    const std::unique_ptr<TIFFOpenOptions, decltype(&TIFFOpenOptionsFree)> options(
        TIFFOpenOptionsAlloc(), TIFFOpenOptionsFree);
    if (!options) return {nullptr, TIFFCleanup};
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), TakeDown, &target);
    return {TIFFClientOpenExt(
                "drawing", "wl", &target, Read, Write, Seek, [](thandle_t) { return 0; },
                [](thandle_t handle) -> toff_t { return TargetOf(handle).file.size(); }, nullptr,
                nullptr, options.get()),
            TIFFCleanup};
}

bool WriteRows(TIFF* tiff, const GreyRaster& raster, bool isGrey) {
    for (int y = 0; y < raster.height; ++y) {
        std::vector<std::uint8_t> row =
            isGrey ? std::vector<std::uint8_t>(raster.Row(y), raster.Row(y) + raster.width)
                   : BitsOfRow(raster, y, true);
        if (TIFFWriteScanline(tiff, row.data(), static_cast<std::uint32_t>(y), 0) < 0) return false;
    }
    return true;
}

/** One bit a pixel as fax machines pack it (ITU-T T.6), 0 white, as layout programs colour it. */
bool WriteAll(TIFF* tiff, const GreyRaster& raster, double dotsPerInch,
              const ExportOptions& options) {
    const auto set = [tiff](std::uint32_t tag, auto value) {
        return TIFFSetField(tiff, tag, value) == 1;
    };
    const bool isGrey = options.isGrey;
    return set(TIFFTAG_IMAGEWIDTH, raster.width) && set(TIFFTAG_IMAGELENGTH, raster.height) &&
           set(TIFFTAG_BITSPERSAMPLE, isGrey ? 8 : 1) && set(TIFFTAG_SAMPLESPERPIXEL, 1) &&
           set(TIFFTAG_COMPRESSION, isGrey ? COMPRESSION_LZW : COMPRESSION_CCITTFAX4) &&
           set(TIFFTAG_PHOTOMETRIC, isGrey ? PHOTOMETRIC_MINISBLACK : PHOTOMETRIC_MINISWHITE) &&
           set(TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH) && set(TIFFTAG_XRESOLUTION, dotsPerInch) &&
           set(TIFFTAG_YRESOLUTION, dotsPerInch) &&
           set(TIFFTAG_ROWSPERSTRIP, static_cast<std::uint32_t>(raster.height)) &&
           (options.title.empty() || set(TIFFTAG_DOCUMENTNAME, options.title.c_str())) &&
           WriteRows(tiff, raster, isGrey) && TIFFWriteDirectory(tiff) == 1 && TIFFFlush(tiff) == 1;
}

}  // namespace

std::string TiffOf(const BarcodeDrawing& drawing, const ExportOptions& options) {
    const double pixels = PixelsPerModule(drawing, options.pixelsPerModule);
    const GreyRaster raster = drawing.Raster(pixels);
    Target target;
    bool isWritten = false;
    {
        const OpenFile tiff = Open(target);
        isWritten = tiff && WriteAll(tiff.get(), raster, DotsPerInch(drawing, pixels), options);
    }
    if (isWritten && target.trouble.empty()) return target.file;
    throw DrawingFailure(DrawingProblem::Reason::kLibrary, {"libtiff, " + target.trouble});
}

}  // namespace linewright
