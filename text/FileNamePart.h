#pragma once

#include <string>
#include <string_view>

namespace linewright {

/** A text, fit to be part of a file's name on every system. UTF-8. */
std::string FileNamePart(std::string_view text);

}  // namespace linewright
