#pragma once

#include <string>

namespace linewright {

/** A scanner's digits of an EAN or UPC symbol in the form that they are compared in: 8 digits for
 *  EAN-8, 13 for all others, UPC-E in its long form. */
std::string EanUpcNumber(const std::string& digits, bool isUpcE);

}  // namespace linewright
