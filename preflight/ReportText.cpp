#include <fmt/format.h>

#include "preflight/Preflight.h"
#include "preflight/Standard.h"
#include "text/Readable.h"

namespace linewright {

namespace {

std::string MeasureWords(const FoundSymbol& symbol) {
    if (!symbol.measures) return fmt::format("not measured; bars {:.1f} mm high", symbol.height);
    const Measures& measures = *symbol.measures;
    std::string words = fmt::format("X {:.3f} mm", measures.xDimension);
    if (measures.ratio) words += fmt::format(", ratio {:.2f}", *measures.ratio);
    const double gain = 100 * measures.barGain;
    if (gain >= 1 || gain <= -1) words += fmt::format(", bars {:+.0f} % of X", gain);
    words += fmt::format("; bars {:.1f} mm high; quiet zones {:.1f} X left, {:.1f} X right",
                         symbol.height, measures.quietLeft, measures.quietRight);
    return words + (measures.isExact ? "" : "; from pixels");
}

/** "" where nothing is known. */
std::string PaintWords(const FoundSymbol& symbol) {
    std::string words = Readable(symbol.font);
    if (symbol.measures && symbol.measures->barColour && symbol.measures->spaceColour) {
        if (!words.empty()) words += "; ";
        words += fmt::format("#{:06x} on #{:06x}", *symbol.measures->barColour,
                             *symbol.measures->spaceColour);
    }
    return words;
}

std::string GradeWords(const GradeParts& parts) {
    std::string words = fmt::format("contrast {:.0f} %", 100 * parts.symbolContrast);
    if (parts.decodability) {
        return fmt::format(
            "grade {:.1f} estimated from the document: {}, edges {:.0f} %, modulation {:.0f} %, "
            "defects {:.0f} %, decodability {:.0f} %",
            parts.grade, words, 100 * parts.edgeContrast, 100 * parts.modulation,
            100 * parts.defects, 100 * *parts.decodability);
    }
    return words + " estimated from the document";
}

}  // namespace

std::vector<std::string> SymbolWords(const FoundSymbol& symbol) {
    std::vector<std::string> words{MeasureWords(symbol)};
    std::string paint = PaintWords(symbol);
    if (!paint.empty()) words.push_back(std::move(paint));
    if (symbol.measures && symbol.measures->parts) {
        words.push_back(GradeWords(*symbol.measures->parts));
    }
    return words;
}

namespace {

std::string SymbolText(const FoundSymbol& symbol) {
    std::string text = fmt::format("  {} {}  at {:.1f} mm, {:.1f} mm", NameOf(symbol),
                                   ShownData(symbol), symbol.area.left, symbol.area.top);
    if (symbol.degrees != 0) text += fmt::format(", turned {}°", symbol.degrees);
    if (symbol.line) text += fmt::format("  (line {})", *symbol.line);
    text += '\n';
    for (const std::string& words : SymbolWords(symbol)) text += "    " + words + '\n';
    for (const Fault& fault : symbol.faults) text += "    ✗ " + Sentence(fault) + '\n';
    return text;
}

}  // namespace

std::string ReportText(const PreflightReport& report) {
    std::string text;
    auto symbol = report.symbols.begin();
    for (const Page& page : report.pages) {
        text +=
            fmt::format("page {}, {:.0f} mm x {:.0f} mm\n", page.number, page.width, page.height);
        for (; symbol != report.symbols.end() && symbol->page == page.number; ++symbol) {
            text += SymbolText(*symbol);
        }
    }
    for (const Fault& fault : report.faults) text += "✗ " + Sentence(fault) + '\n';
    return text;
}

}  // namespace linewright
