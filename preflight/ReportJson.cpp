#include <cmath>
#include <nlohmann/json.hpp>

#include "preflight/Preflight.h"
#include "preflight/Standard.h"
#include "text/Utf8.h"

namespace linewright {

namespace {

using nlohmann::ordered_json;

const char* NameOf(Fault::Kind kind) {
    using Kind = Fault::Kind;
    switch (kind) {
        case Kind::kQuietLeft: return "quietZoneLeft";
        case Kind::kQuietRight: return "quietZoneRight";
        case Kind::kXDimension: return "xDimension";
        case Kind::kWideBars: return "wideBars";
        case Kind::kNarrowBars: return "narrowBars";
        case Kind::kContrast: return "contrast";
        case Kind::kGrade: return "grade";
        case Kind::kCovered: return "covered";
        case Kind::kUnread: return "unread";
        case Kind::kUnexpected: return "unexpected";
        case Kind::kOtherData: return "otherData";
        case Kind::kTwice: return "twice";
        case Kind::kWrongPage: return "wrongPage";
        case Kind::kOtherSymbology: return "otherSymbology";
        case Kind::kMissing: return "missing";
        case Kind::kRefusedRow: return "refusedRow";
    }
    return "";
}

/** A ten-thousandth is more than anything is measured to. */
double Rounded(double value) {
    return std::round(value * 10'000) / 10'000;
}

ordered_json FaultsJson(const std::vector<Fault>& faults) {
    ordered_json list = ordered_json::array();
    for (const Fault& fault : faults) {
        ordered_json object{{"kind", NameOf(fault.kind)}};
        const bool isOfRow =
            fault.kind == Fault::Kind::kMissing || fault.kind == Fault::Kind::kRefusedRow;
        if (isOfRow) object["line"] = std::stoull(fault.parameters.front());
        object["message"] = Sentence(fault);
        list.push_back(std::move(object));
    }
    return list;
}

std::string ColourText(unsigned colour) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text = "#";
    for (int shift = 20; shift >= 0; shift -= 4) text += kDigits[colour >> shift & 15];
    return text;
}

void AddMeasures(ordered_json& object, const FoundSymbol& symbol) {
    const Measures& measures = *symbol.measures;
    object["measuredFrom"] = measures.isExact ? "shapes" : "pixels";
    object["xDimension"] = Rounded(measures.xDimension);
    if (measures.ratio) object["ratio"] = Rounded(*measures.ratio);
    object["barGain"] = Rounded(measures.barGain);
    const Dimensions& standard = DimensionsOf(symbol);
    object["quietZones"] = {
        {"left", Rounded(measures.quietLeft)},
        {"right", Rounded(measures.quietRight)},
        {"leftOfStandard", Rounded(standard.quietLeft / standard.modulesPerX)},
        {"rightOfStandard", Rounded(standard.quietRight / standard.modulesPerX)}};
    if (measures.barColour && measures.spaceColour) {
        object["colour"] = ColourText(*measures.barColour);
        object["background"] = ColourText(*measures.spaceColour);
    }
    if (!measures.parts) return;
    const GradeParts& parts = *measures.parts;
    ordered_json grade{{"estimatedFrom", "the document"},
                       {"symbolContrast", Rounded(parts.symbolContrast)},
                       {"edgeContrast", Rounded(parts.edgeContrast)},
                       {"modulation", Rounded(parts.modulation)},
                       {"defects", Rounded(parts.defects)}};
    if (parts.decodability) {
        grade["decodability"] = Rounded(*parts.decodability);
        grade["grade"] = Rounded(parts.grade);
    }
    object["grade"] = std::move(grade);
}

ordered_json SymbolJson(const FoundSymbol& symbol) {
    ordered_json object{{"page", symbol.page},
                        {"left", Rounded(symbol.area.left)},
                        {"top", Rounded(symbol.area.top)},
                        {"width", Rounded(symbol.area.Width())},
                        {"height", Rounded(symbol.area.Height())},
                        {"turned", symbol.degrees},
                        {"symbology", NameOf(symbol)},
                        {"data", Utf8FromLatin1(symbol.reading.data)},
                        {"shown", ShownData(symbol)},
                        {"addOn", symbol.reading.addOn},
                        {"gs1", symbol.reading.isGs1},
                        {"barHeight", Rounded(symbol.height)}};
    if (symbol.measures) AddMeasures(object, symbol);
    if (!symbol.font.empty()) object["font"] = symbol.font;
    if (symbol.line) object["line"] = *symbol.line;
    object["faults"] = FaultsJson(symbol.faults);
    return object;
}

}  // namespace

std::string ReportJson(const PreflightReport& report) {
    ordered_json object{{"document", report.document},      {"pageCount", report.pageCount},
                        {"hasFaults", report.HasFaults()},  {"pages", ordered_json::array()},
                        {"symbols", ordered_json::array()}, {"faults", FaultsJson(report.faults)}};
    for (const Page& page : report.pages) {
        object["pages"].push_back({{"page", page.number},
                                   {"width", Rounded(page.width)},
                                   {"height", Rounded(page.height)}});
    }
    for (const FoundSymbol& symbol : report.symbols) {
        object["symbols"].push_back(SymbolJson(symbol));
    }
    return object.dump(1, ' ', false, nlohmann::json::error_handler_t::replace) + '\n';
}

}  // namespace linewright
