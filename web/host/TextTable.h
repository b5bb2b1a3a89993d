#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace host {

/** A key, and its texts in UTF-8 in the order of LocaleNumber. */
struct TextRow {
    std::string_view key;
    std::array<std::string_view, 4> texts;
};

/** The plug-in's texts that requests and lists of types need, which the build takes from its string
 *  tables. */
std::span<const TextRow> TextTable();

/** The place of a locale such as "deDE"; that of "enUS" for another one. */
constexpr std::size_t LocaleNumber(std::string_view locale) {
    if (locale == "deDE") return 1;
    if (locale == "frFR") return 2;
    if (locale == "jaJP") return 3;
    return 0;
}

}  // namespace host
