#include "meaning/PlainMeaning.h"

#include "core/Word.h"
#include "meaning/Bars.h"
#include "meaning/PlainBars.h"

namespace linewright {

namespace {

using namespace meaning;

/** Whether each of eight bytes is "A", "D", "F" or "T". */
constexpr bool AreBars(Word letters) {
    // Below 0x20 a sum with 0x7F has its highest bit unless it is 0 that is added, and no sum
    // reaches the next byte.
    constexpr Word kHighest = EightTimes(0x80);
    const Word low = letters ^ EightTimes(0x40);
    const auto differsFrom = [low](char letter) {
        return (low ^ EightTimes(static_cast<unsigned char>(letter ^ 0x40))) + EightTimes(0x7F);
    };
    const Word isNone =
        differsFrom('A') & differsFrom('D') & differsFrom('F') & differsFrom('T') & kHighest;
    return (low & EightTimes(0xE0)) == 0 && isNone == 0;
}
static_assert(AreBars(MakeWord("ADFTTFDA")) && !AreBars(MakeWord("ADFTTFDB")) &&
              !AreBars(MakeWord("ADFTTFD\xC1")) && !AreBars(MakeWord("ADFTTFD")));

/** Whether a rule holds of all words of a text, the last one of which may overlap the one before.
 */
template <class Rule>
bool HoldsOfAll(std::string_view text, Rule rule) {
    if (text.size() < kWordSize) return false;
    for (std::size_t place = 0; place + kWordSize < text.size(); place += kWordSize) {
        if (!rule(Load<Word>(text.data() + place))) return false;
    }
    return rule(Load<Word>(text.data() + text.size() - kWordSize));
}

/** Nobody but the encoder knows the digits in the bars. */
bool HasIntelligentMailBars(std::string_view fontString, std::string_view data) {
    return fontString.size() == 65 && HoldsOfAll(fontString, AreBars) &&
           HoldsOfAll(data, [](Word digits) { return linewright::AreDigits(digits); });
}

bool SaysItsData(TypeCode code, std::string_view fontString, std::string_view data) {
    switch (code) {
        case TypeCode::kCode128: return PlainlySaysCode128(fontString, data);
        case TypeCode::kCode39: return PlainlySaysCode39(fontString, data);
        case TypeCode::kCodabar: return PlainlySaysCodabar(fontString, data);
        case TypeCode::kInterleaved2of5: return PlainlySaysInterleaved2of5(fontString, data);
        case TypeCode::kMsi: return PlainlySaysMsi(fontString, data);
        case TypeCode::kPostnet: return PlainlySaysPostnet(fontString, data);
        case TypeCode::kEan13:
        case TypeCode::kJan13: return PlainlySaysEan13(fontString, data);
        case TypeCode::kEan8: return PlainlySaysEan8(fontString, data);
        case TypeCode::kUpcA: return PlainlySaysUpcA(fontString, data);
        case TypeCode::kUpcE: return PlainlySaysUpcE(fontString, data);
        case TypeCode::kIntelligentMail: return HasIntelligentMailBars(fontString, data);
        default: return false;
    }
}

}  // namespace

bool IsPlain(const EncodedBarcode& barcode) {
    const std::string_view data = barcode.data;
    return !barcode.isCheckWanted && barcode.expectation == Expectation::kNone && !data.empty() &&
           data.front() != ' ' && data.back() != ' ' &&
           SaysItsData(barcode.type.code, barcode.fontString, barcode.data);
}

}  // namespace linewright
