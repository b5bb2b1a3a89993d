#pragma once

#include "core/DataBlock.h"

namespace linewright {

/** Converts UTF-8 data, read by LenientUtf8, to one byte a code point, in a block one byte longer
 *  than the result. Code points above 255 are dropped. Nothing without a block; false without
 *  memory, the data unchanged. */
bool ConvertUtf8Data(DataBlock data);

}  // namespace linewright
