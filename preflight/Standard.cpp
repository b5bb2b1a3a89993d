#include "preflight/Standard.h"

#include <fmt/format.h>

#include <algorithm>

#include "types/BarcodeTypes.h"

namespace linewright {

namespace {

/** What measuring may be wrong by, in X-dimensions: shapes, and pixels. */
constexpr double kExact = 0.1;
constexpr double kOfPixels = 0.4;
/** Of lengths, as a part of them. */
constexpr double kLengthSlack = 0.02;
/** Of the X-dimension. A reduction that makes up for ink is up to a quarter of it. */
constexpr double kMostGain = 0.12;
constexpr double kMostGainOfPixels = 0.25;
constexpr double kMostLoss = 0.3;
/** A document leaves a press some contrast to lose. */
constexpr double kLeastContrast = 0.55;
constexpr double kLeastGrade = 1.5;

TypeCode UsualType(const FoundSymbol& symbol) {
    switch (symbol.symbology) {
        case Symbology::kCode128: return TypeCode::kCode128;
        case Symbology::kCode39: return TypeCode::kCode39;
        case Symbology::kCodabar: return TypeCode::kCodabar;
        case Symbology::kInterleaved2of5: return TypeCode::kInterleaved2of5;
        case Symbology::kMsi: return TypeCode::kMsi;
        case Symbology::kPostnet: return TypeCode::kPostnet;
        case Symbology::kIntelligentMail: return TypeCode::kIntelligentMail;
        case Symbology::kText: return TypeCode::kCode128;
        case Symbology::kEanUpc: break;
    }
    switch (FormOf(symbol.reading)) {
        case EanUpcForm::kEight: return TypeCode::kEan8;
        case EanUpcForm::kUpcE: return TypeCode::kUpcE;
        case EanUpcForm::kThirteenOrTwelve: break;
    }
    // An EAN-13 that begins with 0 has the bars of UPC-A.
    return symbol.reading.data.starts_with('0') ? TypeCode::kUpcA : TypeCode::kEan13;
}

void JudgeQuietZones(FoundSymbol& symbol, const Measures& measures, const Dimensions& standard) {
    const double slack = measures.isExact ? kExact : kOfPixels;
    const double left = standard.quietLeft / standard.modulesPerX;
    const double right = standard.quietRight / standard.modulesPerX;
    if (measures.quietLeft < left - slack) {
        symbol.faults.push_back(
            {Fault::Kind::kQuietLeft,
             {fmt::format("{:.1f}", measures.quietLeft), fmt::format("{:.3g}", left)}});
    }
    if (measures.quietRight < right - slack) {
        symbol.faults.push_back(
            {Fault::Kind::kQuietRight,
             {fmt::format("{:.1f}", measures.quietRight), fmt::format("{:.3g}", right)}});
    }
}

void JudgeGrade(FoundSymbol& symbol, const GradeParts& parts) {
    if (parts.symbolContrast < kLeastContrast) {
        symbol.faults.push_back(
            {Fault::Kind::kContrast, {fmt::format("{:.0f}", 100 * parts.symbolContrast)}});
    }
    if (parts.grade >= kLeastGrade || parts.symbolContrast < kLeastContrast) return;
    const double decodability = parts.decodability.value_or(1);
    const bool isDecodability = decodability < 0.37;
    const bool isDefects = !isDecodability && parts.defects > 0.25;
    symbol.faults.push_back({Fault::Kind::kGrade,
                             {fmt::format("{:.1f}", parts.grade),
                              isDecodability ? "decodability"
                              : isDefects    ? "defects"
                                             : "modulation",
                              fmt::format("{:.0f}", 100 * (isDecodability ? decodability
                                                           : isDefects    ? parts.defects
                                                                          : parts.modulation))}});
}

}  // namespace

const Dimensions& DimensionsOf(const FoundSymbol& symbol, const BarcodeType* type) {
    if (type != nullptr && type->symbology == symbol.symbology) return type->dimensions;
    const TypeCode code = UsualType(symbol);
    return std::find_if(kBarcodeTypes.begin(), kBarcodeTypes.end(),
                        [code](const BarcodeType& row) { return row.code == code; })
        ->dimensions;
}

void JudgeMeasures(FoundSymbol& symbol, const BarcodeType* type) {
    if (!symbol.measures) return;
    const Measures& measures = *symbol.measures;
    const Dimensions& standard = DimensionsOf(symbol, type);
    const double x = measures.xDimension * kMillimetre;
    const double slack = measures.isExact ? kLengthSlack : 3 * kLengthSlack;
    if (x < standard.xLeast * (1 - slack) || x > standard.xLargest * (1 + slack)) {
        symbol.faults.push_back({Fault::Kind::kXDimension,
                                 {fmt::format("{:.3f}", measures.xDimension),
                                  fmt::format("{:.3f}", standard.xLeast / kMillimetre),
                                  fmt::format("{:.3f}", standard.xLargest / kMillimetre)}});
    }
    JudgeQuietZones(symbol, measures, standard);
    const std::string gain = fmt::format("{:.0f}", 100 * std::abs(measures.barGain));
    if (measures.barGain > (measures.isExact ? kMostGain : kMostGainOfPixels)) {
        symbol.faults.push_back({Fault::Kind::kWideBars, {gain}});
    } else if (measures.barGain < -kMostLoss) {
        symbol.faults.push_back({Fault::Kind::kNarrowBars, {gain}});
    }
    if (measures.parts) JudgeGrade(symbol, *measures.parts);
}

}  // namespace linewright
