#pragma once

#include <string>
#include <string_view>

#include "PMString.h"

namespace host {

/** Each byte that is not part of a well-formed sequence becomes U+FFFD. */
std::u32string FromUtf8(std::string_view text);
/** A value that is no Unicode character becomes U+FFFD. */
std::string ToUtf8(std::u32string_view text);

std::string ToUtf8(const PMString& text);
PMString PlainText(std::string_view utf8);

}  // namespace host
