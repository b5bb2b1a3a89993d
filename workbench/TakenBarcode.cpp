#include "workbench/TakenBarcode.h"

#include <QRegularExpression>
#include <algorithm>
#include <cmath>

#include "requests/DrawnFile.h"
#include "requests/WrittenInk.h"

namespace linewright {

std::string TakenBarcode::Content(const ExportChoice& choice) const {
    ExportOptions options{.isGrey = IsPicture(choice.format) && choice.isGrey};
    if (HasInks(choice.format)) {
        const auto ink = FindInk(choice.ink.toStdString());
        if (!ink) throw DrawingFailure(DrawingProblem::Reason::kInk);
        options.ink = *ink;
    }
    if (IsPicture(choice.format)) {
        options.pixelsPerModule = PixelsNear(*drawn.drawing, choice.dotsPerInch);
    }
    return ContentOf(drawn, wish, choice.format, options);
}

QString TakenBarcode::FileName() const {
    constexpr int kLongestData = 40;
    const std::string_view type = drawn.outcome.type->shortName;
    QString data = QString::fromStdString(wish.data).left(kLongestData);
    // What a file's name cannot have on one system or another.
    static const QRegularExpression unfit(QStringLiteral("[\\x00-\\x1F\\x7F/\\\\:*?\"<>|]+"));
    data.replace(unfit, QStringLiteral("_"));
    return QString::fromLatin1(type.data(), static_cast<qsizetype>(type.size())) + '-' +
           data.trimmed();
}

bool IsPicture(FileFormat format) {
    return format == FileFormat::kPng || format == FileFormat::kTiff;
}

bool HasInks(FileFormat format) {
    return format == FileFormat::kPdf || format == FileFormat::kEps;
}

QString EndingOf(FileFormat format) {
    switch (format) {
        case FileFormat::kPdf: return QStringLiteral("pdf");
        case FileFormat::kEps: return QStringLiteral("eps");
        case FileFormat::kSvg: return QStringLiteral("svg");
        case FileFormat::kPng: return QStringLiteral("png");
        case FileFormat::kTiff: return QStringLiteral("tiff");
    }
    return {};
}

std::optional<int> PixelsNear(const BarcodeDrawing& drawing, int dotsPerInch) {
    if (drawing.DotsPerInch()) return std::nullopt;
    constexpr double kPointsPerInch = 72;
    constexpr int kMost = 1000;
    const int step = drawing.HasHalfModules() ? 2 : 1;
    const double pixels = drawing.Module() / kPointsPerInch * dotsPerInch;
    return std::clamp(static_cast<int>(std::lround(pixels / step)), 1, kMost / step) * step;
}

}  // namespace linewright
