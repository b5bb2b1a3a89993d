#pragma once

#include "core/EncoderTable.h"
#include "current/EanUpc.h"

namespace linewright {

// UPC-A (ISO/IEC 15420) for the EAN/UPC font.

/** Digits of the number without its check digit. */
constexpr std::size_t kUpcALength = 11;

/** Appends the symbol of the digits in the data: 11, or 12 with the check digit, which is not
 *  looked at, and 2 or 5 more for an add-on. Any other number of digits counts as zeros. The result
 *  is kEncoded, or kNoDigits for no data. */
int16 BuildUpcA(std::string_view data, TextArea& symbol);

/** The type's encoder: 11, 13 or 16 digits, or 12, 14 or 17. Then the last one is dropped, also
 *  where it belongs to an add-on. */
int32 EncodeUpcACurrent(const EncoderArguments& arguments);

}  // namespace linewright
