#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "standards/Code128Patterns.h"

// The letters of the bars font and the postal font, for those who write font strings and those who
// read them; docs/fonts.md has the whole of the fonts.

namespace linewright::current {

/** The letter of a bar and the space behind it, of one to four modules each ("1" to "4"). */
constexpr char LetterOf(char barWidth, char spaceWidth) {
    return static_cast<char>('A' + 4 * (barWidth - '1') + (spaceWidth - '1'));
}

/** Code 128's stop character, whose last bar has four modules of the quiet zone with it. */
inline constexpr std::string_view kStopLetters = "GIAH";
static_assert(kCode128StopWidths == "2331112" && LetterOf('2', '3') == 'G' &&
              LetterOf('3', '1') == 'I' && LetterOf('1', '1') == 'A' && LetterOf('2', '4') == 'H');

// A bar and a space of symbologies with two widths, by their ratio: narrow-narrow, narrow-wide,
// wide-narrow, wide-wide. The ratios 3.0 and 2.0 share the letter of two narrow elements.
inline constexpr std::string_view kPairLetters20 = "ABEF";
inline constexpr std::string_view kPairLetters25 = "WXYZ";
inline constexpr std::string_view kPairLetters30 = "ACIK";

// Postnet.
inline constexpr char kTallBar = 'n';
inline constexpr char kShortBar = 'o';
/** Short-short, short-tall, tall-short, tall-tall. */
inline constexpr std::string_view kBarPairs = "jklm";

/** The bars of a digit as bits, the first one highest. Two are tall: those whose weights 7, 4, 2, 1
 *  and 0 add up to the digit, and 7 and 4 for 0. */
constexpr unsigned PostnetBarsOf(int digit) {
    constexpr std::array<int, 5> kWeights{0, 1, 2, 4, 7};
    for (std::size_t low = 0; low < kWeights.size(); ++low)
        for (std::size_t high = low + 1; high < kWeights.size(); ++high)
            if ((kWeights[low] + kWeights[high]) % 11 == digit) return 1u << low | 1u << high;
    return 0;
}
static_assert(PostnetBarsOf(0) == 0b11000 && PostnetBarsOf(1) == 0b00011 &&
              PostnetBarsOf(9) == 0b10100);

}  // namespace linewright::current
