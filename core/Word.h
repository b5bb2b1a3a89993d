#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <type_traits>

namespace linewright {

/** Eight bytes of text as one number, the first byte lowest: what is asked of each byte is then
 *  answered for eight at a time. */
using Word = std::uint64_t;
static_assert(std::endian::native == std::endian::little);

inline constexpr std::size_t kWordSize = sizeof(Word);

/** The same byte eight times. */
constexpr Word EightTimes(unsigned char byte) {
    return 0x0101010101010101 * Word{byte};
}

/** A text of up to eight bytes, zeros behind them; for tables. */
constexpr Word MakeWord(std::string_view text) {
    Word word = 0;
    for (std::size_t place = text.size(); place-- > 0;)
        word = word << 8 | static_cast<unsigned char>(text[place]);
    return word;
}

template <class Unsigned>
Unsigned Load(const char* bytes) {
    Unsigned number;
    std::memcpy(&number, bytes, sizeof number);
    return number;
}

/** The first three to eight bytes, zeros behind them: two loads that may overlap. */
template <std::size_t Count = kWordSize>
Word LoadWord(const char* bytes) {
    static_assert(Count >= 3 && Count <= kWordSize);
    if constexpr (Count == kWordSize) return Load<Word>(bytes);
    using Part = std::conditional_t<Count == 3, std::uint16_t, std::uint32_t>;
    constexpr std::size_t kRest = Count - sizeof(Part);
    return Load<Part>(bytes) | Word{Load<Part>(bytes + kRest)} << 8 * kRest;
}

/** The first eight bytes of a text, zeros behind a shorter one. */
inline Word LoadWord(std::string_view text) {
    if (text.size() >= kWordSize) return Load<Word>(text.data());
    if (text.size() < 4) return MakeWord(text);
    const std::size_t rest = text.size() - 4;
    return Load<std::uint32_t>(text.data()) | Word{Load<std::uint32_t>(text.data() + rest)}
                                                  << 8 * rest;
}

/** Whether each byte is a decimal digit: its upper half is 3, and stays so with 6 added. */
constexpr bool AreDigits(Word word) {
    constexpr Word kUpperHalves = EightTimes(0xF0);
    return (word & kUpperHalves) == EightTimes('0') &&
           ((word + EightTimes(6)) & kUpperHalves) == EightTimes('0');
}

/** A bit for each byte, the first one's lowest: whether it is a decimal digit. */
constexpr std::uint64_t DigitMask(Word word) {
    const Word low = word & EightTimes(0x7F);
    const Word isZeroOrMore = low + EightTimes(0x80 - '0');
    const Word isMoreThanNine = low + EightTimes(0x7F - '9');
    const Word isDigit = isZeroOrMore & ~isMoreThanNine & ~word & EightTimes(0x80);
    // Brings the upper bits of all bytes together in the highest one.
    return (isDigit >> 7) * 0x0102040810204080 >> 56;
}

/** The values of eight digits, a byte each. */
constexpr Word DigitValues(Word digits) {
    return digits & EightTimes(0x0F);
}

/** The number that eight digits are in the decimal system, the first byte the highest: neighbours
 *  are joined to two digits, then to four, then to eight. */
constexpr std::uint64_t DecimalNumber(Word digits) {
    Word number = DigitValues(digits);
    number = (number * 10 + (number >> 8)) & 0x00FF00FF00FF00FF;
    number = (number * 100 + (number >> 16)) & 0x0000FFFF0000FFFF;
    return (number * 10'000 + (number >> 32)) & 0xFFFFFFFF;
}

/** The sum of eight small values, of which every other one from the first on weighs `first`, and
 *  those between weigh `second`. It is below 2^16, and so is each product of a value. */
constexpr std::size_t WeightedSum(Word values, std::size_t first, std::size_t second) {
    constexpr Word kEveryOther = 0x00FF00FF00FF00FF;
    const Word pairs = (values & kEveryOther) * first + (values >> 8 & kEveryOther) * second;
    return pairs * 0x0001000100010001 >> 48;
}

}  // namespace linewright
