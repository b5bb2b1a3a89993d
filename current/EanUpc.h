#pragma once

#include <cstddef>
#include <string_view>

#include "BaseType.h"
#include "core/FixedText.h"
#include "core/Status.h"
#include "current/BuilderText.h"
#include "retail/RetailSymbol.h"

namespace linewright {

// How the builders of EAN-13, EAN-8, UPC-A and UPC-E read their digits.

/** Status of a builder that was given no data. */
constexpr int16 kNoDigits = 1;

/** A number of `mainLength` digits, and what stands behind it: its check digit, an add-on of 2 or 5
 *  digits, or first the one and then the other. */
struct EanUpcNumber {
    std::string_view main;
    std::string_view addOn;  // empty for other numbers of digits
    bool isKnownLength;
};

/** One digit more than the longest number with check digit and add-on. */
constexpr std::size_t kMaxEanUpcDigits = 12 + 1 + 5 + 1;
using EanUpcDigits = FixedText<kMaxEanUpcDigits>;

/** How many digits of those behind a number are an add-on. */
constexpr std::size_t AddOnLength(std::size_t digitsBehindMain) {
    switch (digitsBehindMain) {
        case 2:
        case 3: return 2;
        case 5:
        case 6: return 5;
        default: return 0;
    }
}

/** Divides digits, of which there are at least `mainLength`. */
constexpr EanUpcNumber SplitNumber(std::string_view digits, std::size_t mainLength) {
    const std::size_t behind = digits.size() - mainLength;
    const std::size_t addOnLength = AddOnLength(behind);
    return {digits.substr(0, mainLength), digits.substr(digits.size() - addOnLength),
            behind < 2 || addOnLength > 0};
}

/** The same for any number of digits: where it is not known, zeros without an add-on. */
constexpr EanUpcNumber SplitNumberOrZeros(std::string_view digits, std::size_t mainLength) {
    constexpr std::string_view kZeros = "000000000000";
    const bool isKnown =
        digits.size() >= mainLength && SplitNumber(digits, mainLength).isKnownLength;
    return SplitNumber(isKnown ? digits : kZeros.substr(0, mainLength), mainLength);
}

}  // namespace linewright
