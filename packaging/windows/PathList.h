#pragma once

#include <string>
#include <string_view>

namespace linewright {

// Folders as PATH lists them: separated by semicolons, one with a semicolon in its name in quotes.

/** The list with a folder at its end, as it is when the folder stands in it already. */
std::wstring WithFolder(std::wstring_view list, std::wstring_view folder);
/** The list without a folder, all else as it is. */
std::wstring WithoutFolder(std::wstring_view list, std::wstring_view folder);

}  // namespace linewright
