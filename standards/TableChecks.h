#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

// What published tables of element patterns are checked for at compile time.

namespace linewright {

template <typename Rows>
constexpr bool AllDifferent(const Rows& rows) {
    for (auto row = rows.begin(); row != rows.end(); ++row) {
        if (std::find(row + 1, rows.end(), *row) != rows.end()) return false;
    }
    return true;
}

template <typename Rows, typename Rule>
constexpr bool AllRows(const Rows& rows, Rule rule) {
    return std::all_of(rows.begin(), rows.end(), rule);
}

/** Whether a text consists of the given characters only. */
constexpr bool ConsistsOf(std::string_view text, std::string_view characters) {
    return text.find_first_not_of(characters) == std::string_view::npos;
}

/** Wide elements among the bars (the 1st, 3rd, 5th ... element) of a pattern of "n" and "w". */
constexpr std::size_t WideBars(std::string_view pattern) {
    std::size_t wide = 0;
    for (std::size_t element = 0; element < pattern.size(); element += 2) {
        wide += pattern[element] == 'w';
    }
    return wide;
}

/** Wide elements among the spaces (the 2nd, 4th, 6th ... element). */
constexpr std::size_t WideSpaces(std::string_view pattern) {
    return pattern.empty() ? 0 : WideBars(pattern.substr(1));
}

/** Modules of a pattern of element widths "1" to "9": of every element, or of every second (step
 *  2). */
constexpr std::size_t ModuleCount(std::string_view widths, std::size_t step = 1) {
    std::size_t modules = 0;
    for (std::size_t element = 0; element < widths.size(); element += step) {
        modules += static_cast<std::size_t>(widths[element] - '0');
    }
    return modules;
}

}  // namespace linewright
