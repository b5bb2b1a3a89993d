#include "cli/DrawnFile.h"

#include <fmt/format.h>

#include "cli/DrawingAdvice.h"
#include "merge/Failure.h"
#include "requests/WrittenInk.h"
#include "text/Readable.h"

namespace linewright {

namespace {

Ink InkOf(const std::string& text) {
    if (text.empty()) throw Failure("--ink names no ink");
    if (const auto ink = FindInk(text)) return *ink;
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

}  // namespace linewright
