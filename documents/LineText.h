#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace linewright {

/** What a column says; none where there is no such column. */
using ColumnText = std::function<std::optional<std::string_view>(std::string_view column)>;

/** A line's text with what the columns named in braces say. A part between kBetweenColumns of which
 *  all columns are empty is left out; braces around what is no column stand as they are. */
std::string FilledLine(std::string_view text, const ColumnText& textOf);

/** The first name in braces that is none of the columns. */
std::optional<std::string> UnknownColumn(std::string_view text,
                                         const std::vector<std::string>& columns);

/** Text that people and XML can read: control characters as their pictures, and U+FFFD for what is
 *  no character. */
std::string ShownText(std::string_view text);

/** The same as lines, broken at line ends, without blank ones at the end. */
std::vector<std::string> ShownLines(std::string_view text);

}  // namespace linewright
