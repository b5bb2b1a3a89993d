#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "standards/CheckDigits.h"
#include "standards/TableChecks.h"

// Number sets of ISO/IEC 15420:2009: A has odd parity, B even parity; C, the right half's set,
// needs no table.

namespace linewright {

/** ISO/IEC 15420:2009, table 3, left half of EAN-13: the number sets of digits 2 to 7 by the
 *  leading digit. */
inline constexpr std::array<std::string_view, 10> kEan13Parity{
    // 0
    "AAAAAA", "AABABB", "AABBAB", "AABBBA", "ABAABB",
    "ABBAAB", "ABBBAA", "ABABAB", "ABABBA", "ABBABA",
};

/** ISO/IEC 15420:2009, table 4, UPC-E: the number sets of the six digits by the check digit, for
 *  number system 0. Number system 1 swaps A and B. */
inline constexpr std::array<std::string_view, 10> kUpcEParity{
    // 0
    "BBBAAA", "BBABAA", "BBAABA", "BBAAAB", "BABBAA",
    "BAABBA", "BAAABB", "BABABA", "BABAAB", "BAABAB",
};

/** ISO/IEC 15420:2009, two-digit add-on: the number sets by the add-on's value modulo 4. */
inline constexpr std::array<std::string_view, 4> kAddOn2Parity{"AA", "AB", "BA", "BB"};

/** ISO/IEC 15420:2009, five-digit add-on: the number sets by its check value. */
inline constexpr std::array<std::string_view, 10> kAddOn5Parity{
    // 0
    "BBAAA", "BABAA", "BAABA", "BAAAB", "ABBAA", "AABBA", "AAABB", "ABABA", "ABAAB", "AABAB",
};

/** The number set of the opposite parity. */
constexpr char OppositeNumberSet(char numberSet) {
    return numberSet == 'A' ? 'B' : 'A';
}

/** The number sets of the six digits of UPC-E. */
constexpr std::array<char, 6> UpcENumberSets(char numberSystem, char checkDigit) {
    std::array<char, 6> sets{};
    const std::string_view row = kUpcEParity[static_cast<std::size_t>(checkDigit - '0')];
    for (std::size_t place = 0; place < sets.size(); ++place)
        sets[place] = numberSystem == '1' ? OppositeNumberSet(row[place]) : row[place];
    return sets;
}

/** The number sets of an add-on of two or five digits. */
constexpr std::string_view AddOnNumberSets(std::string_view addOn) {
    return addOn.size() == 2 ? kAddOn2Parity[AddOn2CheckValue(addOn)]
                             : kAddOn5Parity[AddOn5CheckValue(addOn)];
}

/** Whether each row has `size` number sets, `evenCount` of them B. */
template <typename Rows>
constexpr bool HasParity(const Rows& rows, std::size_t size, std::ptrdiff_t evenCount) {
    return AllRows(rows, [=](std::string_view row) {
        return row.size() == size && ConsistsOf(row, "AB") &&
               std::count(row.begin(), row.end(), 'B') == evenCount;
    });
}

/** EAN-13's row 0 is all A, which makes UPC-A a part of it; its other rows are those of UPC-E in
 *  number system 1. */
constexpr bool Ean13ParityFollowsUpcE() {
    for (std::size_t digit = 0; digit < kUpcEParity.size(); ++digit) {
        for (std::size_t position = 0; position < kUpcEParity[digit].size(); ++position) {
            const char expected =
                digit == 0 ? 'A' : OppositeNumberSet(kUpcEParity[digit][position]);
            if (kEan13Parity[digit][position] != expected) return false;
        }
    }
    return true;
}

static_assert(HasParity(kUpcEParity, 6, 3));
static_assert(HasParity(kAddOn5Parity, 5, 2));
static_assert(Ean13ParityFollowsUpcE());
static_assert(AllDifferent(kEan13Parity) && AllDifferent(kUpcEParity));
static_assert(AddOnNumberSets("05") == "AB" && AddOnNumberSets("52495") == "BABAA");
static_assert(AllDifferent(kAddOn2Parity) && AllDifferent(kAddOn5Parity));

}  // namespace linewright
