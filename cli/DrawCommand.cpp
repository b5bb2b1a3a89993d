#include "cli/DrawCommand.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "cli/Failure.h"
#include "cli/OutputFile.h"
#include "cli/ScannedBarcode.h"
#include "cli/VerdictWords.h"
#include "render/Export.h"
#include "requests/DrawnBarcode.h"
#include "scanners/Verification.h"
#include "text/Readable.h"

namespace linewright {

namespace {

enum class FileKind { kPdf, kEps, kSvg, kPng };

FileKind KindOf(const std::string& output) {
    constexpr std::array<std::pair<std::string_view, FileKind>, 4> kEndings{{
        {".pdf", FileKind::kPdf},
        {".eps", FileKind::kEps},
        {".svg", FileKind::kSvg},
        {".png", FileKind::kPng},
    }};
    for (const auto& [ending, kind] : kEndings) {
        if (output.ends_with(ending)) return kind;
    }
    throw Failure(
        fmt::format("{}: the name must end in .pdf, .eps, .svg or .png", Readable(output)));
}

/** Wholes that a resolution lies between, and at which resolutions they would be. */
std::string WholePixels(const BarcodeDrawing& drawing, double pixels) {
    const int step = drawing.HasHalfModules() ? 2 : 1;
    const int below = static_cast<int>(pixels) / step * step;
    std::string advice;
    for (const int whole : {below, below + step}) {
        if (whole == 0) continue;
        if (!advice.empty()) advice += ", ";
        advice += fmt::format("{} at {:.2f} dpi", whole, DotsPerInch(drawing, whole));
    }
    return advice;
}

/** The pixels that a module of a PNG has: as asked for, else the number nearest to 300 dpi. */
int PixelsOf(const BarcodeDrawing& drawing, const DrawOptions& options) {
    constexpr double kTolerance = 0.001;
    if (options.pixelsPerModule && options.dotsPerInch) {
        throw Failure("--dpi and --pixels-per-module say the same: give one of them");
    }
    if (options.pixelsPerModule) {
        if (!drawing.HasHalfModules() || *options.pixelsPerModule % 2 == 0)
            return *options.pixelsPerModule;
        throw Failure(
            "with the ratio 2.5 bars end on half modules: the number of pixels a module "
            "must be even");
    }
    if (!options.dotsPerInch) return WholePixelsPerModule(drawing);
    const double pixels = PixelsPerModule(drawing, *options.dotsPerInch);
    const int whole = WholePixelsPerModule(drawing, *options.dotsPerInch);
    if (std::abs(whole - pixels) < kTolerance) return whole;
    throw Failure(fmt::format("at {:g} dpi a module has {:.3f} pixels; whole ones are {}",
                              *options.dotsPerInch, pixels, WholePixels(drawing, pixels)));
}

void PrintVerification(const Verification& verification, std::ostream& out) {
    out << VerdictWords(verification) << '\n';
    for (const Reading& reading : verification.readings) {
        const std::string found =
            reading.isFound ? fmt::format("{:9}  {}", reading.symbology, ShownData(reading))
                            : "reads nothing";
        out << fmt::format("  {:9}  {}\n", reading.scanner, found);
    }
}

/** At the pixels a module that a person's picture will have, or a usual number. */
Verification VerificationOf(const DrawnBarcode& drawn, const DrawOptions& options) {
    constexpr int kUsualPixels = 4;
    const bool isAsked = options.pixelsPerModule || options.dotsPerInch;
    const int pixels = isAsked ? PixelsOf(*drawn.drawing, options) : kUsualPixels;
    return Verify(*drawn.drawing, drawn.outcome.meaning, pixels);
}

std::string Content(const BarcodeDrawing& drawing, FileKind kind, const DrawOptions& options) {
    switch (kind) {
        case FileKind::kPdf: return PdfOf(drawing);
        case FileKind::kEps: return EpsOf(drawing);
        case FileKind::kSvg: return SvgOf(drawing);
        case FileKind::kPng: break;
    }
    return PngOf(drawing, PixelsOf(drawing, options));
}

}  // namespace

ExitStatus RunDraw(Service& service, const DrawOptions& options, Console& console) {
    const FileKind kind = KindOf(options.output);
    const DrawnBarcode drawn =
        DrawBarcode(service, WishOf(options.encode, console), options.drawing);
    ReportOutcome(drawn.outcome, console);
    if (!drawn.drawing) return kRefused;
    const std::string content = Content(*drawn.drawing, kind, options);
    OutputFile file(options.output);
    file.Stream() << content;
    file.Keep();
    if (!options.isVerified) return kDone;
    const Verification verification = VerificationOf(drawn, options);
    PrintVerification(verification, console.out);
    return verification.IsBad() ? kDoesNotScan : kDone;
}

ExitStatus RunVerify(Service& service, const DrawOptions& options, Console& console) {
    const DrawnBarcode drawn =
        DrawBarcode(service, WishOf(options.encode, console), options.drawing);
    ReportOutcome(drawn.outcome, console);
    if (!drawn.drawing) return kRefused;
    const Verification verification = VerificationOf(drawn, options);
    PrintVerification(verification, console.out);
    return verification.IsBad() ? kDoesNotScan : kDone;
}

ScannedBarcode EncodeAndScan(Service& service, const BarcodeWish& wish, const std::string& fonts) {
    DrawnBarcode drawn = DrawBarcode(service, wish, {.fonts = fonts, .isTextWanted = false});
    if (!drawn.drawing) return {std::move(drawn.outcome), "", ""};
    const Verification verification = Verify(*drawn.drawing, drawn.outcome.meaning);
    return {std::move(drawn.outcome), VerdictWords(verification), verification.WhatWasRead()};
}

}  // namespace linewright
