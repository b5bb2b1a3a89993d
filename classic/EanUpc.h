#pragma once

#include <string_view>

#include "core/DataBlock.h"

namespace linewright {

// EAN-13, JAN-13, UPC-A and UPC-E (ISO/IEC 15420) for the classic font. All take the digits without
// the check digit; the first three also those of an add-on behind them, two or five. A refused
// encoding leaves "***Bad EAN-13***", "***Bad JAN-13***", "***Bad UPC-A***" or "***Bad UPC-E***".

/** Replace the data by the font string, status 0, or by the marker, status -1: not 12 digits
 * (UPC-A: 11), alone or with 2 or 5 more. JAN-13 is EAN-13 with a marker of its own. */
int16 EncodeEan13Classic(DataBlock data);
int16 EncodeJan13Classic(DataBlock data);
int16 EncodeUpcAClassic(DataBlock data);

/** Replaces the data, the seven digits of UPC-E or the eleven of UPC-A, by the font string, status
 *  0, in a block of 24 bytes; or by the marker, status -2: the first byte is not "0" (so also no
 *  data), or another one is no digit; status -3: another length. The six digits printed follow a
 *  rule of their own: the non-zero ones of manufacturer and product in their order, behind as many
 *  zeros as these have beyond four. */
int16 EncodeUpcEClassic(DataBlock data);

/** Service, no caller of our own: which parity the digits of an add-on have: 1 to 4 for its value
 *  modulo 4, of exactly two digits; 5 to 14 for its check value, of exactly five. */
int32 AddOn2Parity(std::string_view digits);
int32 AddOn5Parity(std::string_view digits);

}  // namespace linewright
