#pragma once

#include <array>
#include <string_view>

// The bytes at which the classic fonts have what is not itself, for those who write font strings
// and those who read them; docs/fonts.md has the whole of the fonts.

namespace linewright::classic {

// Code 128. A symbol value has several bytes: as data of set A or B, as a pair of set C and as the
// check character.

inline constexpr std::array<unsigned char, 3> kStartBytes{0x87, 0x88, 0x89};
inline constexpr unsigned char kStopByte = 0x8A;

/** The font's bytes for the two values whose own places other characters hold. */
inline constexpr unsigned char kSpaceByte = 192;
inline constexpr unsigned char kApostropheByte = 193;

/** A character of set A or B, from 0 to 134: itself, but for space and apostrophe. */
constexpr unsigned char CharacterByte(unsigned char character) {
    return character == ' ' ? kSpaceByte : character == '\'' ? kApostropheByte : character;
}

/** The check character. Each value from 0 to 102 has a byte; a remainder below 0, which a wrapped
 *  sum can leave, is written by the general rule. */
constexpr unsigned char CheckByte(int value) {
    if (value == 0) return kSpaceByte;
    if (value == 7) return kApostropheByte;
    if (value == 64) return 194;
    if (value >= 95 && value <= 101) return static_cast<unsigned char>(value + 100);
    if (value == 102) return 134;
    return static_cast<unsigned char>(value + 32);
}

/** Set C's pairs as data. Their bytes differ from the check character's for 64, 98 and 99: the font
 *  has both forms. */
constexpr unsigned char PairByte(int pair) {
    if (pair == 64) return 96;
    if (pair >= 98) return static_cast<unsigned char>(pair + 32);
    return CheckByte(pair);
}

/** Code 39: the character space, and the two bytes of the start/stop character. */
inline constexpr char kCode39Space = '!';
inline constexpr std::string_view kCode39StartStops = "*#";

/** Interleaved 2 of 5: a bar and a space, both narrow, wide space, wide bar, both wide. */
inline constexpr std::string_view kPairLetters = "ABCD";

/** Interleaved 2 of 5 and MSI. */
inline constexpr char kStart = '<';
inline constexpr char kStop = '>';

/** Postnet. */
inline constexpr char kFrameBar = '/';

}  // namespace linewright::classic
