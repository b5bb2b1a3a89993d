#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace linewright {

inline constexpr std::size_t kImbCharacterCount = 10;
inline constexpr std::size_t kImbBitsPerCharacter = 13;
inline constexpr std::size_t kImbBarCount = 65;

/** A place in the ten characters A to J: the character's index (0 to 9) and a bit of it (0 to
 *  12). */
struct ImbBit {
    std::uint8_t character;
    std::uint8_t bit;

    constexpr bool operator==(const ImbBit&) const = default;
};

/** The two places that decide whether a bar reaches down and whether it reaches up. */
struct ImbBar {
    ImbBit descender;
    ImbBit ascender;

    constexpr bool operator==(const ImbBar&) const = default;
};

/** USPS-B-3200, bar-to-character mapping: one row per bar, from left to right. */
inline constexpr std::array<ImbBar, kImbBarCount> kImbBarMap{{
    // clang-format off
    // descender, ascender
    // bar 1
    {{7, 2}, {4, 3}},
    {{1, 10}, {0, 0}},
    {{9, 12}, {2, 8}},
    {{5, 5}, {6, 11}},
    {{8, 9}, {3, 1}},
    {{0, 1}, {5, 12}},
    {{2, 5}, {1, 8}},
    {{4, 4}, {9, 11}},
    {{6, 3}, {8, 10}},
    {{3, 9}, {7, 6}},
    // bar 11
    {{5, 11}, {1, 4}},
    {{8, 5}, {2, 12}},
    {{9, 10}, {0, 2}},
    {{7, 1}, {6, 7}},
    {{3, 6}, {4, 9}},
    {{0, 3}, {8, 6}},
    {{6, 4}, {2, 7}},
    {{1, 1}, {9, 9}},
    {{7, 10}, {5, 2}},
    {{4, 0}, {3, 8}},
    // bar 21
    {{6, 2}, {0, 4}},
    {{8, 11}, {1, 0}},
    {{9, 8}, {3, 12}},
    {{2, 6}, {7, 7}},
    {{5, 1}, {4, 10}},
    {{1, 12}, {6, 9}},
    {{7, 3}, {8, 0}},
    {{5, 8}, {9, 7}},
    {{4, 6}, {2, 10}},
    {{3, 4}, {0, 5}},
    // bar 31
    {{8, 4}, {5, 7}},
    {{7, 11}, {1, 9}},
    {{6, 0}, {9, 6}},
    {{0, 6}, {4, 8}},
    {{2, 1}, {3, 2}},
    {{5, 9}, {8, 12}},
    {{4, 11}, {6, 1}},
    {{9, 5}, {7, 4}},
    {{3, 3}, {1, 2}},
    {{0, 7}, {2, 0}},
    // bar 41
    {{1, 3}, {4, 1}},
    {{6, 10}, {3, 5}},
    {{8, 7}, {9, 4}},
    {{2, 11}, {5, 6}},
    {{0, 8}, {7, 12}},
    {{4, 2}, {8, 1}},
    {{5, 10}, {3, 0}},
    {{9, 3}, {0, 9}},
    {{6, 5}, {2, 4}},
    {{7, 8}, {1, 7}},
    // bar 51
    {{5, 0}, {4, 5}},
    {{2, 3}, {0, 10}},
    {{6, 12}, {9, 2}},
    {{3, 11}, {1, 6}},
    {{8, 8}, {7, 9}},
    {{5, 4}, {0, 11}},
    {{1, 5}, {2, 2}},
    {{9, 1}, {4, 12}},
    {{8, 3}, {6, 6}},
    {{7, 0}, {3, 7}},
    // bar 61
    {{4, 7}, {7, 5}},
    {{0, 12}, {1, 11}},
    {{2, 9}, {9, 0}},
    {{6, 8}, {5, 3}},
    {{3, 10}, {8, 2}},
    // clang-format on
}};

/** Whether every bit of every character decides exactly one half of one bar. */
constexpr bool ImbBarMapUsesEachBitOnce() {
    std::array<bool, kImbCharacterCount * kImbBitsPerCharacter> used{};
    for (const ImbBar& bar : kImbBarMap) {
        for (const ImbBit& place : {bar.descender, bar.ascender}) {
            if (place.character >= kImbCharacterCount || place.bit >= kImbBitsPerCharacter) {
                return false;
            }
            bool& seen = used[place.character * kImbBitsPerCharacter + place.bit];
            if (seen) return false;
            seen = true;
        }
    }
    return true;
}

// 65 bars of two places each: used once each, all 130 places are used.
static_assert(2 * kImbBarCount == kImbCharacterCount * kImbBitsPerCharacter);
static_assert(ImbBarMapUsesEachBitOnce());
static_assert(kImbBarMap.front() == ImbBar{{7, 2}, {4, 3}});
static_assert(kImbBarMap.back() == ImbBar{{3, 10}, {8, 2}});

}  // namespace linewright
