#pragma once

#include <string>
#include <string_view>

namespace linewright {

/**
 * A font string as text that a person can copy and that upsets no terminal and no file, in UTF-8.
 * Bytes 32 to 126 stand for themselves, those above 127 are the characters that Windows-1252 has
 * for them or, where it has none, U+F000 + byte; 0 to 31 are U+2400 + byte and 127 is U+2421.
 */
std::string FontText(std::string_view fontString);

}  // namespace linewright
