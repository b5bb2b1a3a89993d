#pragma once

#include <cstddef>
#include <string_view>

#include "BaseType.h"
#include "core/FixedText.h"
#include "core/Status.h"

namespace linewright {

// What EAN-13, EAN-8, UPC-A and UPC-E (ISO/IEC 15420) have in common: the letters of the EAN/UPC
// font, and add-ons.

/** Status of a builder that was given no data. */
constexpr int16 kNoDigits = 1;

constexpr char kGuard = '(';
constexpr char kCentreGuard = '*';
/** The right guard of UPC-E. */
constexpr char kSpecialGuard = ')';

/** A digit as bars of number set A, B or C. */
constexpr char InSet(char numberSet, char digit) {
    const int shift = numberSet == 'A' ? 0 : numberSet == 'B' ? 17 : 27;
    return static_cast<char>(digit + shift);
}
/** UPC-A's first and last digit: set A and set C with bars as long as the guards. */
constexpr char InLongSetA(char digit) {
    return static_cast<char>(digit + 49);
}
constexpr char InLongSetC(char digit) {
    return static_cast<char>(digit + 59);
}
/** A digit printed beside the symbol, without bars. */
constexpr char BesideSymbol(char digit) {
    return static_cast<char>(digit + (digit < '5' ? 37 : 64));
}

/** Digits that stand behind the main number of `mainLength` digits: its check digit, an add-on of
 *  2 or 5 digits, or first the one and then the other. */
struct EanUpcNumber {
    std::string_view main;
    std::string_view addOn;  // empty for other numbers of digits
    bool isKnownLength;
};

/** One digit more than the longest number with check digit and add-on. */
constexpr std::size_t kMaxEanUpcDigits = 12 + 1 + 5 + 1;
using EanUpcDigits = FixedText<kMaxEanUpcDigits>;

/** The decimal digits of a text, as many as there is room for. */
void CollectDigits(std::string_view text, EanUpcDigits& digits);

/** Divides digits, of which there are at least `mainLength`. */
EanUpcNumber SplitNumber(std::string_view digits, std::size_t mainLength);

/** The start character, five add-on characters and four delineators. */
constexpr std::size_t kAddOnCapacity = 1 + 5 + 4;

/** Appends an add-on of 2 or 5 digits; nothing for none. */
void AppendAddOn(std::string_view addOn, TextArea& symbol);

}  // namespace linewright
