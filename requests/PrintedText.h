#pragma once

#include <string>

#include "requests/BarcodeOutcome.h"

namespace linewright {

/** What people read of a barcode that was made, in UTF-8: what its bars carry, GS1 data with its
 *  identifiers in brackets, Intelligent Mail in its groups of digits. */
std::string PrintedText(const BarcodeOutcome& outcome, const BarcodeWish& wish);

}  // namespace linewright
