#pragma once

#include "core/DataBlock.h"
#include "core/PString.h"

namespace linewright {

// Interleaved 2 of 5 (ISO/IEC 16390) for the classic font: start, five letters for each pair of
// digits, stop. The number of digits is made even by a "0": in front of odd data without a check
// digit, between even data and its check digit. With `textOnly` the result is the digits to be
// printed under the bars instead, without a check digit.

/** Replaces the data by the font string or the text, status 0, or by "***Bad Int. 2 of 5***",
 *  status -1: data of 256 bytes or more, or with anything but digits. */
int16 EncodeInterleaved2of5Classic(DataBlock data, bool checkDigit, bool textOnly);

/** Service, no caller of our own: the same for a string in place; 0, or -1 with the string left
 *  alone. What exceeds 255 characters is cut. */
int16 TranslateInterleaved2of5(PString& string, bool checkDigit, bool textOnly);

}  // namespace linewright
