#include "cli/DrawnFile.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>

#include "cli/DrawingAdvice.h"
#include "merge/Failure.h"
#include "requests/PrintedText.h"
#include "text/Readable.h"

namespace linewright {

namespace {

/** "C,M,Y,K" in per cent. */
std::optional<std::array<double, 4>> CmykOf(std::string_view text) {
    std::array<double, 4> parts{};
    const char* at = text.data();
    const char* const last = at + text.size();
    for (double& part : parts) {
        if (&part != parts.data() && (at == last || *at++ != ',')) return std::nullopt;
        const auto [end, error] = std::from_chars(at, last, part);
        if (error != std::errc() || !(part >= 0 && part <= 100)) return std::nullopt;
        part /= 100;
        at = end;
    }
    return at == last ? std::optional(parts) : std::nullopt;
}

Ink InkOf(const std::string& text) {
    constexpr std::string_view kCmyk = "cmyk:";
    if (text == "black") return {};
    if (!text.starts_with(kCmyk)) {
        if (text.empty()) throw Failure("--ink names no ink");
        return {.kind = Ink::Kind::kSpot, .name = Readable(text)};
    }
    const auto parts = CmykOf(std::string_view(text).substr(kCmyk.size()));
    if (parts) return {.kind = Ink::Kind::kCmyk, .cmyk = *parts};
    throw Failure(fmt::format(
        "--ink \"{}\" is no ink such as black, cmyk:0,0,0,100 or the name of a spot colour",
        Readable(text)));
}

FileFormat FormatWanted(const DrawOptions& options) {
    if (!options.format.empty()) return *FormatOf('.' + options.format);
    if (options.output == "-") return FileFormat::kPdf;
    const auto format = FormatOf(options.output);
    if (format) return *format;
    throw Failure(fmt::format("{}: the name must end in .pdf, .eps, .svg, .png or .tiff",
                              Readable(options.output)));
}

}  // namespace

FileWish FileWishOf(const DrawOptions& options) {
    if (options.pixelsPerModule && options.drawing.dotsPerInch) {
        throw Failure("--dpi and --pixels-per-module say the same: give one of them");
    }
    return {FormatWanted(options),
            {.ink = InkOf(options.ink),
             .pixelsPerModule = options.pixelsPerModule,
             .isGrey = options.isGrey}};
}

DrawnBarcode DrawOne(Service& service, Fonts& fonts, const BarcodeWish& wish,
                     const DrawOptions& options, Console& console) {
    DrawnBarcode drawn = DrawBarcode(service, fonts, wish, options.drawing);
    for (const DrawingWarning& warning : drawn.warnings) {
        console.err << "linewright: warning: " << AdvisedSentence(warning, console.language)
                    << '\n';
    }
    ReportOutcome(drawn.outcome, console);
    return drawn;
}

std::string ContentOf(const DrawnBarcode& drawn, const BarcodeWish& wish, FileWish file) {
    file.options.data = PrintedText(drawn.outcome, wish);
    file.options.title = fmt::format("{} {}", drawn.outcome.type->shortName, file.options.data);
    return FileOf(*drawn.drawing, file.format, file.options);
}

}  // namespace linewright
