#pragma once

#include <string>
#include <string_view>

namespace linewright {

/** Each byte that belongs to no well-formed UTF-8 character becomes U+FFFD. */
std::u16string Utf16FromUtf8(std::string_view bytes);

/** Each surrogate that is not half of a pair becomes U+FFFD. */
std::string Utf8FromUtf16(std::u16string_view units);

}  // namespace linewright
