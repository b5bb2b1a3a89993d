#pragma once

#include "core/DataBlock.h"
#include "core/PString.h"

namespace linewright {

// Code 39 (ISO/IEC 16388) for the classic font: start character, data, check character, stop
// character. A space is written as "!".

/** Replaces the data by the symbol's font string, status 0, or by "***Bad Code 39***", status -1:
 *  data of more than 255 bytes (127 in full ASCII), or with a character that cannot be encoded.
 *
 *  @param checkMode    0 no check character, 1 modulo 10 and digits only, else modulo 43
 *  @param useAsterisk  "*" as start and stop character, else "#" */
int16 EncodeCode39Classic(DataBlock data, bool fullAscii, uint16 checkMode, bool useAsterisk);

/** Service, no caller of our own: writes the characters of a string as the pairs of full ASCII Code
 *  39; byte 128 is dropped. 0, or -1 with the string left alone: a byte above 128. What exceeds 255
 *  characters is cut. */
int32 ExpandCode39FullAscii(PString& string);

}  // namespace linewright
