#include "render/Export.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace linewright {

std::optional<FileFormat> FormatOf(std::string_view fileName) {
    constexpr std::array<std::pair<std::string_view, FileFormat>, 6> kEndings{{
        {".pdf", FileFormat::kPdf},
        {".eps", FileFormat::kEps},
        {".svg", FileFormat::kSvg},
        {".png", FileFormat::kPng},
        {".tif", FileFormat::kTiff},
        {".tiff", FileFormat::kTiff},
    }};
    std::string name(fileName);
    std::transform(name.begin(), name.end(), name.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    for (const auto& [ending, format] : kEndings) {
        if (name.ends_with(ending)) return format;
    }
    return std::nullopt;
}

std::string FileOf(const BarcodeDrawing& drawing, FileFormat format, const ExportOptions& options) {
    const bool takesInk = format == FileFormat::kPdf || format == FileFormat::kEps;
    if (!takesInk && options.ink.kind != Ink::Kind::kBlack) {
        throw DrawingFailure(DrawingProblem::Reason::kInk);
    }
    switch (format) {
        case FileFormat::kPdf: return PdfOf(drawing, options);
        case FileFormat::kEps: return EpsOf(drawing, options);
        case FileFormat::kSvg: return SvgOf(drawing, options);
        case FileFormat::kPng: return PngOf(drawing, options);
        case FileFormat::kTiff: break;
    }
    return TiffOf(drawing, options);
}

double PixelsPerModule(const BarcodeDrawing& drawing, std::optional<double> askedFor) {
    const int step = drawing.HasHalfModules() ? 2 : 1;
    if (askedFor) {
        if (std::fmod(*askedFor, step) == 0) return *askedFor;
        throw DrawingFailure(DrawingProblem::Reason::kOddPixels);
    }
    if (drawing.DotsPerInch()) return drawing.Module() / kInch * *drawing.DotsPerInch();
    constexpr double kUsualResolution = 300;
    const double steps = drawing.Module() / kInch * kUsualResolution / step;
    return step * std::max(1.0, std::round(steps));
}

double DotsPerInch(const BarcodeDrawing& drawing, double pixelsPerModule) {
    return pixelsPerModule / drawing.Module() * kInch;
}

}  // namespace linewright
