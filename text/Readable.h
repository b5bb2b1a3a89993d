#pragma once

#include <string>
#include <string_view>

namespace linewright {

/** UTF-8 that upsets no terminal and no file: control characters become their pictures (U+2400 to
 *  U+2421); those without one, and each byte that is not UTF-8, become U+FFFD. */
std::string Readable(std::string_view bytes);

}  // namespace linewright
