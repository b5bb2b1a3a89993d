#pragma once

#include "core/EncoderTable.h"
#include "current/EanUpc.h"

namespace linewright {

// EAN-13 and JAN-13 (ISO/IEC 15420) for the EAN/UPC font.

/** Appends the symbol of the digits in the data: 12, or 13 with the check digit, which is not
 *  looked at, and 2 or 5 more for an add-on. Any other number of digits counts as zeros. The result
 *  is kEncoded, or kNoDigits for no data. */
int16 BuildEan13(std::string_view data, TextArea& symbol);

/** The types' encoder: up to 12 digits, or 13 with the check digit. */
int32 EncodeEan13Current(const EncoderArguments& arguments);

}  // namespace linewright
