#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace linewright {

/**
 * What a person should know about a font string that was made: sentences in UTF-8, worked out from
 * the data as it was sent, for a type name of the plug-in. `isUtf8` says that the conversion flag
 * was on. Spaces trimmed and zeros put in front are no warnings. Meaningless for refused data.
 */
std::vector<std::string> Warnings(std::string_view typeName, std::string_view data, bool isUtf8);

}  // namespace linewright
