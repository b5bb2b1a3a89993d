#pragma once

#include <string_view>

#include "BaseType.h"
#include "core/Word.h"

namespace linewright {

/** 1 if `value` is one of the first `count` entries of `list`, else 0; also without a list. */
int32 IsInList(int32 value, const int32* list, int32 count);
/** 1 if min ≤ value ≤ max, else 0. A bound of 0 leaves that side open. */
constexpr int32 IsInRange(int32 value, int32 min, int32 max) {
    return (min == 0 || value >= min) && (max == 0 || value <= max);
}

/** Classes of the C locale, as flags. */
enum CharClass : int32 { kDigits = 1, kUpperCase = 2, kPrintable = 4, kAscii = 8 };

/** Whether a byte is of one of the classes or occurs in the C string `extra`, whose terminating NUL
 *  counts as a member; `extra` may be nullptr. */
constexpr bool IsOfClass(uint8 byte, int32 classes, const char* extra) {
    return ((classes & kDigits) && byte >= '0' && byte <= '9') ||
           ((classes & kUpperCase) && byte >= 'A' && byte <= 'Z') ||
           ((classes & kPrintable) && byte >= 0x20 && byte <= 0x7E) ||
           ((classes & kAscii) && byte < 128) ||
           (extra && (byte == 0 || std::string_view(extra).find(static_cast<char>(byte)) !=
                                       std::string_view::npos));
}

/** 1 if each byte is of a class, else 0. No bytes pass. */
int32 CheckCharClasses(const uint8* bytes, int32 length, int32 classes, const char* extra);

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}
/** The number that two digits are in the decimal system. */
constexpr std::size_t PairValue(char first, char second) {
    return static_cast<std::size_t>(first - '0') * 10 + static_cast<std::size_t>(second - '0');
}
inline bool AreDigits(std::string_view text) {
    if (text.size() < kWordSize)
        return AreDigits(LoadWord(text) | EightTimes('0') << 8 * text.size());
    for (std::size_t place = 0; place + kWordSize < text.size(); place += kWordSize)
        if (!AreDigits(LoadWord(text.data() + place))) return false;
    return AreDigits(LoadWord(text.data() + text.size() - kWordSize));
}

}  // namespace linewright
