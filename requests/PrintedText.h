#pragma once

#include <string>

#include "requests/Outcome.h"

namespace linewright {

/** What people read of a barcode that was made, in UTF-8: what its bars carry, GS1 data with its
 *  identifiers in brackets, Intelligent Mail in its groups of digits. */
std::string PrintedText(const Outcome& outcome, const BarcodeWish& wish);

}  // namespace linewright
