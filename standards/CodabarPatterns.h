#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "standards/TableChecks.h"

namespace linewright {

/** ANSI/AIM BC3-1995 (EN 798): the characters in the order of their values, the four start/stop
 *  characters last. */
inline constexpr std::string_view kCodabarCharacters = "0123456789-$:/.+ABCD";

/** What may stand between the start and the stop character. */
inline constexpr std::string_view kCodabarDataCharacters = kCodabarCharacters.substr(0, 16);

/** ANSI/AIM BC3-1995 (EN 798): seven elements (bar, space, ... bar), narrow or wide, by value. */
inline constexpr std::array<std::string_view, 20> kCodabarPatterns{
    // clang-format off
    // 0
    "nnnnnww", "nnnnwwn", "nnnwnnw", "wwnnnnn", "nnwnnwn",
    "wnnnnwn", "nwnnnnw", "nwnnwnn", "nwwnnnn", "wnnwnnn",
    // 10
    "nnnwwnn", "nnwwnnn", "wnnnwnw", "wnwnnnw", "wnwnwnn",
    "nnwnwnw", "nnwwnwn", "nwnwnnw", "nnnwnww", "nnnwwwn",
    // clang-format on
};

/** The value of a data or start/stop character (capital letter), none for any other character. */
constexpr std::optional<std::size_t> CodabarValue(char character) {
    const std::size_t value = kCodabarCharacters.find(character);
    if (value == std::string_view::npos) return std::nullopt;
    return value;
}

/** Wide bars and spaces by value: one of each for the digits, "-" and "$", three bars for ":/.+", a
 *  bar and two spaces for the start/stop characters. */
constexpr bool IsCodabarTable() {
    for (std::size_t value = 0; value < kCodabarPatterns.size(); ++value) {
        const std::string_view pattern = kCodabarPatterns[value];
        const std::size_t wideBars = 12 <= value && value < 16 ? 3 : 1;
        const std::size_t wideSpaces = value < 12 ? 1 : value < 16 ? 0 : 2;
        if (pattern.size() != 7 || !ConsistsOf(pattern, "nw") || WideBars(pattern) != wideBars ||
            WideSpaces(pattern) != wideSpaces) {
            return false;
        }
    }
    return true;
}

static_assert(kCodabarCharacters.size() == kCodabarPatterns.size());
static_assert(AllDifferent(kCodabarCharacters));
static_assert(kCodabarDataCharacters.back() == '+');
static_assert(IsCodabarTable());
static_assert(AllDifferent(kCodabarPatterns));
static_assert(CodabarValue('+') == 15 && CodabarValue('D') == 19 && !CodabarValue('E'));

}  // namespace linewright
