#include "meaning/PlainMeaning.h"

#include <array>

#include "meaning/Bars.h"
#include "meaning/PlainBars.h"

namespace linewright {

namespace {

using namespace meaning;

/** By byte, whether it is none of some characters. */
constexpr std::array<bool, 256> AllBut(std::string_view characters) {
    std::array<bool, 256> others{};
    others.fill(true);
    for (const char character : characters) others[static_cast<unsigned char>(character)] = false;
    return others;
}

bool ConsistsOfAllBut(std::string_view text, const std::array<bool, 256>& others) {
    bool isOther = false;
    for (const char character : text) isOther |= others[static_cast<unsigned char>(character)];
    return !isOther;
}

constexpr auto kNoDigit = AllBut("0123456789");
constexpr auto kNoBar = AllBut("ADFT");

/** Nobody but the encoder knows the digits in the bars. */
bool HasIntelligentMailBars(std::string_view fontString, std::string_view data) {
    return fontString.size() == 65 && ConsistsOfAllBut(fontString, kNoBar) &&
           ConsistsOfAllBut(data, kNoDigit);
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
