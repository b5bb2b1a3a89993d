#pragma once

#include <cstddef>
#include <string_view>
#include <type_traits>

#include "core/Word.h"

// Check digits that are modulo-10 rules of a published standard. Data: decimal digits only; a check
// digit is a decimal character.

namespace linewright {

/** The digit that brings a sum to a multiple of ten. */
constexpr char Modulo10Complement(std::size_t sum) {
    const std::size_t last = sum % 10;
    return last == 0 ? '0' : static_cast<char>('0' + 10 - last);
}

/** Gives `add` the values of the digits, eight at a time from the right, the rightmost one last; in
 *  front of the first digit there are zeros. */
template <class Add>
constexpr void ForEachEight(std::string_view digits, Add add) {
    const auto load = [](std::string_view text) {
        return DigitValues(std::is_constant_evaluated() ? MakeWord(text) : LoadWord(text));
    };
    for (; digits.size() > kWordSize; digits.remove_suffix(kWordSize))
        add(load(digits.substr(digits.size() - kWordSize)));
    if (!digits.empty()) add(load(digits) << 8 * (kWordSize - digits.size()));
}

/** Sum of the digits times weights that alternate from the right: `rightmost`, `next`, ... */
constexpr std::size_t AlternatingSum(std::string_view digits, std::size_t rightmost,
                                     std::size_t next) {
    std::size_t sum = 0;
    ForEachEight(digits, [&](Word values) { sum += WeightedSum(values, next, rightmost); });
    return sum;
}

/** EAN, UPC and Interleaved 2 of 5 (ISO/IEC 15420 and 16390; GS1 General Specifications, 7.9): the
 *  rightmost digit weighs 3, the next one 1, and so on. */
constexpr char Modulo10CheckDigit(std::string_view digits) {
    return Modulo10Complement(AlternatingSum(digits, 3, 1));
}

/** Two-digit add-on (ISO/IEC 15420): its value modulo 4 (0 to 3), which chooses the parity. */
constexpr std::size_t AddOn2CheckValue(std::string_view digits) {
    return AlternatingSum(digits, 1, 10) % 4;
}

/** Five-digit add-on (ISO/IEC 15420): weights 3 and 9, the last digit of the sum (0 to 9). It is
 *  not printed, but chooses the parity. */
constexpr std::size_t AddOn5CheckValue(std::string_view digits) {
    return AlternatingSum(digits, 3, 9) % 10;
}

/** Postnet: all digits weigh the same. */
constexpr char PostnetCheckDigit(std::string_view digits) {
    return Modulo10Complement(AlternatingSum(digits, 1, 1));
}

/** MSI modulo 10: the rightmost digit and every second one are doubled, and a double of two digits
 *  counts as their sum: 9 less than itself, which for the check digit is 1 more. */
constexpr char MsiModulo10CheckDigit(std::string_view digits) {
    std::size_t sum = AlternatingSum(digits, 2, 1);
    ForEachEight(digits, [&](Word values) {
        const Word isFiveOrMore = (values + EightTimes(3)) >> 3 & EightTimes(1);
        sum += WeightedSum(isFiveOrMore, 0, 1);
    });
    return Modulo10Complement(sum);
}

// 5 + 27 + 0 + 3 + 2 + 9 + 4 + 3 + 2 + 9 + 4 + 15 = 83
static_assert(Modulo10CheckDigit("590123412345") == '7');
// 0 + 3 + 18 + 0 + 0 + 0 + 6 + 9 + 3 + 4 + 15 = 58
static_assert(Modulo10CheckDigit("03600029145") == '2');
// 3 + 2 + 15 = 20, and nothing at all: multiples of ten
static_assert(Modulo10CheckDigit("125") == '0' && Modulo10CheckDigit("") == '0');
static_assert(AddOn2CheckValue("05") == 1 && AddOn2CheckValue("99") == 3);
// 15 + 18 + 12 + 81 + 15 = 141
static_assert(AddOn5CheckValue("52495") == 1);
static_assert(PostnetCheckDigit("123456789") == '5' && PostnetCheckDigit("55") == '0');
// 4 and 2 doubled: 8 + 4, and 3 + 1
static_assert(MsiModulo10CheckDigit("1234") == '4');
// 8, 6, 4, 2 doubled: (1 + 6) + (1 + 2) + 8 + 4, and 7 + 5 + 3 + 1
static_assert(MsiModulo10CheckDigit("12345678") == '2');

}  // namespace linewright
