#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "core/Word.h"
#include "imb/ImbBarMap.h"
#include "imb/ImbEncode.h"

// What the encoding looks up, made from the rules and tables of USPS-B-3200.

namespace linewright {

inline constexpr std::uint32_t kImbCodewordRange = 1365;

/** The characters by their codewords: those with five bits set, then those with two. */
inline constexpr auto kImbCharacters = [] {
    constexpr int kFiveOf13 = 1287;
    constexpr int kTwoOf13 = 78;
    static_assert(kFiveOf13 + kTwoOf13 == kImbCodewordRange);
    std::array<std::uint32_t, kImbCodewordRange> characters{};
    if (!ImbBuildNof13Table(characters.data(), 5, kFiveOf13) ||
        !ImbBuildNof13Table(characters.data() + kFiveOf13, 2, kTwoOf13)) {
        characters = {};
    }
    return characters;
}();
static_assert(kImbCharacters.front() != 0 && kImbCharacters.back() != 0);

/** The frame check sequence of no bits at all, and what a byte in each place adds to it: a CRC is
 *  linear, so the sequence of a number is the exclusive or of what its bytes add. */
inline constexpr std::uint32_t kImbEmptySequence = ImbFrameCheckSequence({});
inline constexpr auto kImbSequences = [] {
    std::array<std::array<std::uint16_t, 256>, std::tuple_size_v<ImbBinaryValue>> sequences{};
    for (std::size_t place = 0; place < sequences.size(); ++place) {
        for (std::size_t bit = 1; bit < 256; bit *= 2) {
            ImbBinaryValue value{};
            value[place] = static_cast<std::uint8_t>(bit);
            const std::uint32_t added = ImbFrameCheckSequence(value) ^ kImbEmptySequence;
            for (std::size_t lower = 0; lower < bit; ++lower)
                sequences[place][bit + lower] =
                    static_cast<std::uint16_t>(sequences[place][lower] ^ added);
        }
    }
    return sequences;
}();

/** The first 64 bars as bits, the first one lowest: which reach up and which reach down. */
struct ImbBars {
    Word ascenders = 0;
    Word descenders = 0;

    constexpr ImbBars& operator|=(const ImbBars& other) {
        ascenders |= other.ascenders;
        descenders |= other.descenders;
        return *this;
    }
};

/** What a bit of a character adds to the bars. */
constexpr ImbBars ImbBarsOf(ImbBit place) {
    ImbBars bars;
    for (std::size_t bar = 0; bar < 64; ++bar) {
        if (kImbBarMap[bar].ascender == place) bars.ascenders |= Word{1} << bar;
        if (kImbBarMap[bar].descender == place) bars.descenders |= Word{1} << bar;
    }
    return bars;
}

/** The bars of each value of `Count` bits from `first` on, in each of the ten characters. */
template <std::size_t Count>
constexpr auto ImbBarsOfBits(std::uint8_t first) {
    std::array<std::array<ImbBars, (1 << Count)>, kImbCharacterCount> table{};
    for (std::size_t character = 0; character < table.size(); ++character) {
        for (std::size_t bit = 0; bit < Count; ++bit) {
            const ImbBars added = ImbBarsOf(
                {static_cast<std::uint8_t>(character), static_cast<std::uint8_t>(first + bit)});
            for (std::size_t lower = 0; lower < std::size_t{1} << bit; ++lower) {
                ImbBars& bars = table[character][(std::size_t{1} << bit) + lower];
                bars = table[character][lower];
                bars |= added;
            }
        }
    }
    return table;
}
inline constexpr std::size_t kImbLowBits = 7;
inline constexpr auto kImbBarsOfLowBits = ImbBarsOfBits<kImbLowBits>(0);
inline constexpr auto kImbBarsOfHighBits =
    ImbBarsOfBits<kImbBitsPerCharacter - kImbLowBits>(kImbLowBits);

/** The eight bits of a byte as bytes, the lowest bit first. */
inline constexpr auto kBitsAsBytes = [] {
    std::array<Word, 256> words{};
    for (std::size_t byte = 0; byte < words.size(); ++byte)
        for (std::size_t bit = 0; bit < 8; ++bit) words[byte] |= Word{byte >> bit & 1} << 8 * bit;
    return words;
}();

}  // namespace linewright
