#pragma once

#include "core/EncoderTable.h"
#include "current/UpcA.h"

namespace linewright {

// UPC-E (ISO/IEC 15420) for the EAN/UPC font.

/** Appends the symbol of the digits among the first 20 characters: a UPC-E number of 6 digits, 7
 *  with the number system or 8 with the check digit too, or a UPC-A number of 11 or 12, then 2 or 5
 *  digits of an add-on. Check digits are not looked at. 18 digits have no add-on; any other number
 *  of digits appends nothing. A number without zeros to suppress is written like UPC-A, but for the
 *  right guard. The result is kEncoded, or kNoDigits for no data. */
int16 BuildUpcE(std::string_view data, TextArea& symbol);

/** The type's encoder: 7 or 11 digits, or 8 or 12 with the check digit. */
int32 EncodeUpcECurrent(const EncoderArguments& arguments);

}  // namespace linewright
