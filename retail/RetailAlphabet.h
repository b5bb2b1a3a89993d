#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "standards/TableChecks.h"

namespace linewright {

/** How a font writes EAN and UPC: a letter for each element of the symbol, and ten letters, from
 *  "0" to "9", where the element is a digit. No letter has two meanings. */
struct RetailAlphabet {
    /** A digit printed beside the symbol, without bars. */
    std::string_view outside;

    // ISO/IEC 15420:2009, table 2: auxiliary patterns.
    std::string_view guard;
    std::string_view centreGuard;
    std::string_view upcERightGuard;

    // ISO/IEC 15420:2009, table 1: number sets.
    std::string_view setA;
    std::string_view setB;
    std::string_view setC;
    /** UPC-A's first digit, of set A, and its last, of set C, with bars as long as the guards'. */
    std::string_view longSetA;
    std::string_view longSetC;

    /** Between an EAN-13 symbol and its add-on; nothing is between a UPC symbol and its own. */
    std::string_view ean13AddOnGap;
    std::string_view addOnStart;
    std::string_view addOnDelineator;
    std::string_view addOnSetA;
    std::string_view addOnSetB;
};

inline constexpr RetailAlphabet kClassicRetailAlphabet{
    .outside = "uvwxyz{|}~",
    .guard = "<",
    .centreGuard = "=",
    .upcERightGuard = ">",
    .setA = "!\"#$%&'()*",
    .setB = "klmnopqrst",
    .setC = "abcdefghij",
    .longSetA = "0123456789",
    .longSetC = "ABCDEFGHIJ",
    .ean13AddOnGap = "",
    .addOnStart = "+",
    .addOnDelineator = "-",
    .addOnSetA = "UVWXYZ[\\]^",
    .addOnSetB = "\x80\x81\x82\x83\x84\x85\x86\x87\x88\x89",
};

inline constexpr RetailAlphabet kCurrentRetailAlphabet{
    .outside = "UVWXYuvwxy",
    .guard = "(",
    .centreGuard = "*",
    .upcERightGuard = ")",
    .setA = "0123456789",
    .setB = "ABCDEFGHIJ",
    .setC = "KLMNOPQRST",
    .longSetA = "abcdefghij",
    .longSetC = "klmnopqrst",
    .ean13AddOnGap = " ",
    .addOnStart = "+",
    .addOnDelineator = "!",
    .addOnSetA = "\"#$%&,./:;",
    .addOnSetB = "z=?@[\\]_{}",
};

/** Whether all digits have their letter, and each letter one meaning. */
constexpr bool IsReadable(const RetailAlphabet& alphabet) {
    const std::array digits{alphabet.outside,   alphabet.setA,     alphabet.setB,
                            alphabet.setC,      alphabet.longSetA, alphabet.longSetC,
                            alphabet.addOnSetA, alphabet.addOnSetB};
    const std::array marks{alphabet.guard,         alphabet.centreGuard, alphabet.upcERightGuard,
                           alphabet.ean13AddOnGap, alphabet.addOnStart,  alphabet.addOnDelineator};
    std::array<char, digits.size() * 10 + marks.size()> letters{};
    std::size_t count = 0;
    for (const std::string_view row : digits) {
        if (row.size() != 10) return false;
        for (const char letter : row) letters[count++] = letter;
    }
    for (const std::string_view mark : marks)
        for (const char letter : mark) letters[count++] = letter;
    return AllDifferent(std::string_view(letters.data(), count));
}
static_assert(IsReadable(kClassicRetailAlphabet));
static_assert(IsReadable(kCurrentRetailAlphabet));

/** Whether the guards are one letter each, and the letters of digits between them follow one
 * another as the digits do. */
constexpr bool AreInOrder(const RetailAlphabet& alphabet) {
    for (const std::string_view mark :
         {alphabet.guard, alphabet.centreGuard, alphabet.upcERightGuard})
        if (mark.size() != 1) return false;
    for (const std::string_view row :
         {alphabet.setA, alphabet.setB, alphabet.setC, alphabet.longSetA, alphabet.longSetC})
        for (std::size_t digit = 0; digit < row.size(); ++digit)
            if (row[digit] != static_cast<char>(row[0] + static_cast<char>(digit))) return false;
    return true;
}
static_assert(AreInOrder(kClassicRetailAlphabet));
static_assert(AreInOrder(kCurrentRetailAlphabet));

}  // namespace linewright
