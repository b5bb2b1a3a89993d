#pragma once

#include <cstddef>
#include <string_view>

#include "core/FixedText.h"
#include "retail/RetailAlphabet.h"

namespace linewright {

// EAN and UPC (ISO/IEC 15420) in the letters of a font. Numbers are decimal digits without their
// check digit, which is put behind them; an add-on is two or five digits, or empty for none.

/** Start, five digits and four delineators, and the gap in front of them. */
constexpr std::size_t kLongestAddOn = 1 + 5 + 4;
/** First digit, guard, six digits, centre guard, six digits, guard; gap and add-on. */
constexpr std::size_t kLongestEan13 = 1 + 1 + 6 + 1 + 6 + 1 + 1 + kLongestAddOn;
/** Guard, four digits, centre guard, four digits, guard. */
constexpr std::size_t kLongestEan8 = 1 + 4 + 1 + 4 + 1;
/** First digit, guard, six digits, centre guard, six digits, guard, last digit; add-on. */
constexpr std::size_t kLongestUpcA = 1 + 1 + 6 + 1 + 6 + 1 + 1 + kLongestAddOn;
/** Number system, guard, six digits, guard, check digit; add-on. */
constexpr std::size_t kLongestUpcE = 1 + 1 + 6 + 1 + 1 + kLongestAddOn;

// The alphabet is kClassicRetailAlphabet or kCurrentRetailAlphabet.

/** A number of 12 digits. */
template <const RetailAlphabet& kAlphabet>
void AppendEan13(std::string_view number, std::string_view addOn, TextArea& symbol);

/** A number of 7 digits. */
template <const RetailAlphabet& kAlphabet>
void AppendEan8(std::string_view number, TextArea& symbol);

/** A number of 11 digits. */
template <const RetailAlphabet& kAlphabet>
void AppendUpcA(std::string_view number, std::string_view addOn, std::string_view rightGuard,
                TextArea& symbol);

/** The digits of a UPC-E symbol: those outside the bars, and the six in them. */
struct UpcEDigits {
    char numberSystem;
    std::string_view six;
    /** The number system, 0 or 1, whose number sets the six have. */
    char parityOf;
    char checkDigit;
};
template <const RetailAlphabet& kAlphabet>
void AppendUpcE(const UpcEDigits& digits, std::string_view addOn, TextArea& symbol);

}  // namespace linewright
