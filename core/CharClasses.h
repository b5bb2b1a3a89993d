#pragma once

#include <string_view>

#include "BaseType.h"

namespace linewright {

/** 1 if `value` is one of the first `count` entries of `list`, else 0; also without a list. */
int32 IsInList(int32 value, const int32* list, int32 count);
/** 1 if min ≤ value ≤ max, else 0. A bound of 0 leaves that side open. */
int32 IsInRange(int32 value, int32 min, int32 max);

/** Classes of the C locale, as flags. */
enum CharClass : int32 { kDigits = 1, kUpperCase = 2, kPrintable = 4, kAscii = 8 };

/** 1 if each byte is of one of the classes or occurs in the C string `extra` (whose terminating
 *  NUL counts as a member), else 0. No bytes pass. */
int32 CheckCharClasses(const uint8* bytes, int32 length, int32 classes, const char* extra);

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}
constexpr bool AreDigits(std::string_view text) {
    for (const char c : text)
        if (!IsDigit(c)) return false;
    return true;
}

}  // namespace linewright
