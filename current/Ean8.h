#pragma once

#include "core/EncoderTable.h"
#include "current/EanUpc.h"

namespace linewright {

// EAN-8 (ISO/IEC 15420) for the EAN/UPC font.

/** Appends the symbol of the first 7 digits in the data; fewer count as 0005000. The result is
 *  kEncoded, or kNoDigits for no data. */
int16 BuildEan8(std::string_view data, TextArea& symbol);

/** The type's encoder: up to 7 digits, or 8 with the check digit. */
int32 EncodeEan8(const EncoderArguments& arguments);

}  // namespace linewright
