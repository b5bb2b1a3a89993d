#include "text/Utf16.h"

#include "text/Utf8.h"

namespace linewright {

namespace {

constexpr char32_t kFirstHigh = 0xD800;
constexpr char32_t kFirstLow = 0xDC00;
constexpr char32_t kAboveUnits = 0x10000;

bool IsHighSurrogate(char16_t unit) {
    return (unit & 0xFC00) == kFirstHigh;
}

bool IsLowSurrogate(char16_t unit) {
    return (unit & 0xFC00) == kFirstLow;
}

}  // namespace

std::u16string Utf16FromUtf8(std::string_view bytes) {
    std::u16string units;
    for (const char32_t character : CharactersFromUtf8(bytes)) {
        if (character < kAboveUnits) {
            units += static_cast<char16_t>(character);
        } else {
            units += static_cast<char16_t>(kFirstHigh + ((character - kAboveUnits) >> 10));
            units += static_cast<char16_t>(kFirstLow + ((character - kAboveUnits) & 0x3FF));
        }
    }
    return units;
}

std::string Utf8FromUtf16(std::u16string_view units) {
    std::string text;
    for (std::size_t i = 0; i < units.size(); ++i) {
        char32_t character = units[i];
        if (IsHighSurrogate(units[i]) && i + 1 < units.size() && IsLowSurrogate(units[i + 1])) {
            character = kAboveUnits + ((character - kFirstHigh) << 10) + (units[++i] - kFirstLow);
        }
        AppendUtf8(text, character);
    }
    return text;
}

}  // namespace linewright
