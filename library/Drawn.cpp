#include "library/Drawn.h"

#include <cmath>

#include "host/runtime/Paths.h"
#include "library/Barcode.h"
#include "requests/DrawnFile.h"
#include "requests/WrittenInk.h"
#include "requests/WrittenLength.h"
#include "scanners/Verification.h"

namespace linewright {

namespace {

constexpr double kUsualPixels = 4;
constexpr double kMostPixels = 1000;
constexpr double kMostDotsPerInch = 100000;

[[noreturn]] void Refuse(const std::string& what, std::string_view stated) {
    throw CallFailure{LINEWRIGHT_BAD_ARGUMENT, what + " \"" + std::string(stated) + '"'};
}

std::optional<Length> LengthOf(linewright_text text, const char* name, bool isZeroAllowed) {
    if (text.size == 0) return std::nullopt;
    const std::optional<Length> length = FindLength(ViewOf(text), isZeroAllowed);
    if (!length) Refuse(std::string(name) + " is no length:", ViewOf(text));
    return length;
}

std::optional<double> XDimensionOf(linewright_text text) {
    const std::optional<Length> length = LengthOf(text, "x_dimension", false);
    if (!length) return std::nullopt;
    if (length->isInX) Refuse("x_dimension is no length by itself:", ViewOf(text));
    return length->number;
}

std::optional<Length> ReductionOf(linewright_text text) {
    if (text.size == 0) return std::nullopt;
    const std::optional<Length> reduction = FindReduction(ViewOf(text));
    if (!reduction) Refuse("bar_width_reduction is no length:", ViewOf(text));
    return reduction;
}

/** A number that is not stated is 0. */
std::optional<double> NumberOf(double number, double most, const char* name) {
    if (number == 0) return std::nullopt;
    if (number >= 1 && number <= most) return number;
    Refuse(std::string(name) + " is out of its range:", std::to_string(number));
}

bool Has(const linewright_options& options, uint32_t flag) {
    return (options.flags & flag) != 0;
}

DrawingWish DrawingOf(const linewright_options& options) {
    DrawingWish wish{
        .xDimension = XDimensionOf(options.x_dimension),
        .height = LengthOf(options.height, "height", false),
        .quietZone = LengthOf(options.quiet_zone, "quiet_zone", true),
        .barWidthReduction = ReductionOf(options.bar_width_reduction),
        .dotsPerInch = NumberOf(options.dots_per_inch, kMostDotsPerInch, "dots_per_inch"),
        .isFitted = Has(options, LINEWRIGHT_FIT),
        .hasBearerBars = Has(options, LINEWRIGHT_BEARER),
        .hasMarginMarks = Has(options, LINEWRIGHT_MARGIN_MARKS)};
    if (Has(options, LINEWRIGHT_WITH_TEXT)) wish.isTextWanted = true;
    if (Has(options, LINEWRIGHT_WITHOUT_TEXT)) wish.isTextWanted = false;
    return wish;
}

std::optional<double> PixelsOf(const linewright_options& options) {
    const auto pixels = NumberOf(options.pixels_per_module, kMostPixels, "pixels_per_module");
    if (pixels && std::floor(*pixels) != *pixels) {
        throw CallFailure{LINEWRIGHT_BAD_ARGUMENT, "pixels_per_module is not a whole number"};
    }
    if (pixels && options.dots_per_inch != 0) {
        throw CallFailure{LINEWRIGHT_BAD_ARGUMENT,
                          "dots_per_inch and pixels_per_module say the same: state one of them"};
    }
    return pixels;
}

ExportOptions ExportOf(const linewright_options& options) {
    const std::string_view stated = ViewOf(options.ink);
    const std::optional<Ink> ink = stated.empty() ? Ink{} : FindInk(stated);
    if (!ink) Refuse("ink is none:", stated);
    return {
        .ink = *ink, .pixelsPerModule = PixelsOf(options), .isGrey = Has(options, LINEWRIGHT_GREY)};
}

FileFormat FormatWanted(std::string_view name) {
    const std::optional<FileFormat> format = FormatOf('.' + std::string(name));
    if (!format) Refuse("format is none of pdf, eps, svg, png and tiff:", name);
    return *format;
}

/** Draws, and has `use` do something with the drawing that there is. */
template <class Use>
linewright_status DrawAnd(Opened& opened, const BarcodeWish& wish,
                          const linewright_options& options, const linewright_barcode*& barcode,
                          Use use) {
    try {
        Fonts fonts(host::PathFromUtf8(opened.FontFolder()));
        const DrawnBarcode drawn = DrawBarcode(opened.Requests(), fonts, wish, DrawingOf(options));
        auto made =
            std::make_unique<Barcode>(opened.Requests(), drawn.outcome, wish, opened.Words());
        for (const DrawingWarning& warning : drawn.warnings) {
            made->AddWarning(Sentence(warning, opened.Words()));
        }
        if (drawn.drawing) use(drawn, *made);
        const linewright_status status = made->Status();
        barcode = Barcode::HandOut(std::move(made));
        return status;
    } catch (const DrawingFailure& failure) {
        const bool isOfMachine = failure.problem.IsOfMachine();
        throw CallFailure{isOfMachine ? LINEWRIGHT_FAILED : LINEWRIGHT_NO_DRAWING,
                          Sentence(failure, opened.Words())};
    }
}

uint32_t VerdictOf(const Verification& verification) {
    switch (verification.verdict) {
        case Verdict::kScans: return LINEWRIGHT_SCANS;
        case Verdict::kScansAs: return LINEWRIGHT_SCANS_AS_OTHER;
        case Verdict::kDoesNotScan: return LINEWRIGHT_DOES_NOT_SCAN;
        case Verdict::kNoScanner: break;
    }
    return LINEWRIGHT_NO_SCANNER;
}

}  // namespace

linewright_status Draw(Opened& opened, linewright_text type, linewright_text data,
                       std::string_view format, const linewright_options& options,
                       const linewright_barcode*& barcode) {
    const FileFormat wanted = FormatWanted(format);
    const ExportOptions file = ExportOf(options);
    const BarcodeWish wish = WishOf(type, data, options);
    return DrawAnd(opened, wish, options, barcode, [&](const DrawnBarcode& drawn, Barcode& made) {
        made.Fields().file = made.Keep(ContentOf(drawn, wish, wanted, file));
    });
}

linewright_status ReadBack(Opened& opened, linewright_text type, linewright_text data,
                           const linewright_options& options, const linewright_barcode*& barcode) {
    const std::optional<double> pixels = PixelsOf(options);
    const BarcodeWish wish = WishOf(type, data, options);
    return DrawAnd(opened, wish, options, barcode, [&](const DrawnBarcode& drawn, Barcode& made) {
        const bool isAsked = pixels || options.dots_per_inch != 0;
        const Verification verification =
            Verify(*drawn.drawing, drawn.outcome.meaning,
                   isAsked ? PixelsPerModule(*drawn.drawing, pixels) : kUsualPixels);
        made.Fields().verdict = VerdictOf(verification);
        made.Fields().read = made.Keep(verification.WhatWasRead());
    });
}

}  // namespace linewright
