#pragma once

#include "core/DataBlock.h"
#include "core/PString.h"

namespace linewright {

// Code 128 (ISO/IEC 15417) in one fixed code set, for the classic font: start character, data,
// check character, stop character. There is no switching between sets and no shift.

/** Replace the data by the symbol's font string, status 0, or by the set's marker, status -1: data
 *  of 256 bytes or more, or with a byte that the set does not hold. Set C puts a "0" in front of an
 *  odd number of digits and takes 254 at most. */
int16 EncodeCode128A(DataBlock data);
int16 EncodeCode128B(DataBlock data);
int16 EncodeCode128C(DataBlock data);

/** Service, no caller of our own: translate a string in place to font characters, the check
 *  character at its end and no start or stop; 0, or -1 with the string left alone. What exceeds 255
 *  characters is cut. */
int32 TranslateCode128A(PString& string);
int32 TranslateCode128B(PString& string);
int32 TranslateCode128C(PString& string);

}  // namespace linewright
