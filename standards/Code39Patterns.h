#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "standards/TableChecks.h"

namespace linewright {

/** ISO/IEC 16388:2007, table 1: the data characters in the order of their values, 0 to 42. The
 *  check character is the one whose value is the sum of all values modulo their number. */
inline constexpr std::string_view kCode39Characters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%";

/** The row of the start/stop character, which has no value of its own. */
inline constexpr std::size_t kCode39StartStop = 43;

/** ISO/IEC 16388:2007, table 1: nine elements (bar, space, ... bar), narrow or wide, by value, and
 *  the start/stop character after them. */
inline constexpr std::array<std::string_view, 44> kCode39Patterns{
    // clang-format off
    // 0
    "nnnwwnwnn", "wnnwnnnnw", "nnwwnnnnw", "wnwwnnnnn", "nnnwwnnnw",
    "wnnwwnnnn", "nnwwwnnnn", "nnnwnnwnw", "wnnwnnwnn", "nnwwnnwnn",
    // 10
    "wnnnnwnnw", "nnwnnwnnw", "wnwnnwnnn", "nnnnwwnnw", "wnnnwwnnn",
    "nnwnwwnnn", "nnnnnwwnw", "wnnnnwwnn", "nnwnnwwnn", "nnnnwwwnn",
    // 20
    "wnnnnnnww", "nnwnnnnww", "wnwnnnnwn", "nnnnwnnww", "wnnnwnnwn",
    "nnwnwnnwn", "nnnnnnwww", "wnnnnnwwn", "nnwnnnwwn", "nnnnwnwwn",
    // 30
    "wwnnnnnnw", "nwwnnnnnw", "wwwnnnnnn", "nwnnwnnnw", "wwnnwnnnn",
    "nwwnwnnnn", "nwnnnnwnw", "wwnnnnwnn", "nwwnnnwnn", "nwnwnwnnn",
    // 40
    "nwnwnnnwn", "nwnnnwnwn", "nnnwnwnwn", "nwnnwnwnn",
    // clang-format on
};

/** The value of a data character, none for any other character. */
constexpr std::optional<std::size_t> Code39Value(char character) {
    const std::size_t value = kCode39Characters.find(character);
    if (value == std::string_view::npos) return std::nullopt;
    return value;
}

/** Three wide elements of nine: two bars and a space, or three spaces. */
constexpr bool IsCode39Character(std::string_view pattern) {
    const std::size_t wideBars = WideBars(pattern);
    return pattern.size() == 9 && ConsistsOf(pattern, "nw") &&
           wideBars + WideSpaces(pattern) == 3 && (wideBars == 2 || wideBars == 0);
}

static_assert(kCode39Characters.size() == kCode39StartStop);
static_assert(AllDifferent(kCode39Characters));
static_assert(kCode39Patterns.size() == kCode39StartStop + 1);
static_assert(AllRows(kCode39Patterns, IsCode39Character));
static_assert(AllDifferent(kCode39Patterns));
static_assert(Code39Value('0') == 0 && Code39Value('Z') == 35 && Code39Value('%') == 42);
static_assert(!Code39Value('*') && !Code39Value('a') && !Code39Value('\0'));

}  // namespace linewright
