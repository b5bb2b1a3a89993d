#pragma once

#include "core/EncoderTable.h"
#include "current/BuilderText.h"

namespace linewright {

// Interleaved 2 of 5 (ISO/IEC 16390) for the bars font, and the digits under it.

/** Two letters for the start, five for each pair of digits, two for the stop. The digits are a
 *  check digit more, and one more to make them even. */
constexpr std::size_t kInterleaved2of5Capacity = 2 + 5 * ((kMaxBuilderText + 2) / 2) + 2;

/** Appends the symbol of the digits in the data; kEncoded, kNoData or kEmptyData. A "0" goes in
 *  front where the digits, with the check digit asked for, would be odd. */
int16 BuildInterleaved2of5Current(std::string_view data, double ratio, bool addCheckDigit,
                                  TextArea& symbol);

/** The encoder of the bars: up to 255 digits. */
int32 EncodeInterleaved2of5Current(const EncoderArguments& arguments);
/** The encoder of the text under the bars: the same digits as they are. Its check character is ":"
 *  where the check digit is 0. */
int32 EncodeInterleaved2of5TextCurrent(const EncoderArguments& arguments);

}  // namespace linewright
