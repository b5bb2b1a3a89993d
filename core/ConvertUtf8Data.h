#pragma once

#include "core/DataBlock.h"

namespace linewright {

/** Converts UTF-8 data to one byte a code point, in a block one byte longer than the result. Code
 *  points above 255 are dropped. Decoding is lenient: continuation bytes are not checked, and a
 *  byte that begins no sequence, as each byte of a sequence that the end of the data cuts short,
 *  stands for itself. Nothing without a block; false without memory, the data unchanged. */
bool ConvertUtf8Data(DataBlock data);

}  // namespace linewright
