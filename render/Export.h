#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "render/BarcodeDrawing.h"

namespace linewright {

// A drawing as the content of a file, at its size in points, the same bytes each time. All of them
// throw a DrawingFailure where a library cannot do its work or a wish cannot be had.

enum class FileFormat { kPdf, kEps, kSvg, kPng, kTiff };

/** The format by a file name's ending, in capitals or not. */
std::optional<FileFormat> FormatOf(std::string_view fileName);

/** What the bars are printed in. */
struct Ink {
    enum class Kind {
        /** One ink, by its lightness: DeviceGray, setgray. */
        kBlack,
        kCmyk,
        /** An ink of its own, by its name. */
        kSpot,
    };

    Kind kind = Kind::kBlack;
    /** 0 to 1. */
    std::array<double, 4> cmyk{0, 0, 0, 1};
    /** UTF-8. */
    std::string name{};
};

struct ExportOptions {
    /** UTF-8; what a file is called in a list, and what search and copy find in it. */
    std::string title{};
    std::string data{};
    Ink ink{};
    /** Of pictures; without it as the drawing's resolution says, or near to 300 dpi. */
    std::optional<double> pixelsPerModule{};
    /** 8 bits a pixel, text with greys at its edges, in place of 1. */
    bool isGrey = false;
};

std::string FileOf(const BarcodeDrawing& drawing, FileFormat format, const ExportOptions& options);

/** The font string set in its embedded font, with its text; as paths where the font alone does not
 *  give the bars, with the same text invisible upon them. */
std::string PdfOf(const BarcodeDrawing& drawing, const ExportOptions& options = {});
/** Paths alone. */
std::string EpsOf(const BarcodeDrawing& drawing, const ExportOptions& options = {});
std::string SvgOf(const BarcodeDrawing& drawing, const ExportOptions& options = {});
/** A whole number of pixels a module, the resolution in the file. */
std::string PngOf(const BarcodeDrawing& drawing, const ExportOptions& options = {});
std::string TiffOf(const BarcodeDrawing& drawing, const ExportOptions& options = {});

/** The pixels that a module has in a picture: as asked for, else at the drawing's resolution, else
 *  the whole number nearest to 300 dpi, even where there are half modules. */
double PixelsPerModule(const BarcodeDrawing& drawing, std::optional<double> askedFor);
/** The resolution at which a module has so many pixels. */
double DotsPerInch(const BarcodeDrawing& drawing, double pixelsPerModule);

}  // namespace linewright
