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

/** Divides digits, of which there are at least `mainLength`. */
EanUpcNumber SplitNumber(std::string_view digits, std::size_t mainLength);

/** The same for any number of digits: where it is not known, zeros without an add-on. */
EanUpcNumber SplitNumberOrZeros(std::string_view digits, std::size_t mainLength);

}  // namespace linewright
