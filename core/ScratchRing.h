#pragma once

#include "BaseType.h"

namespace linewright {

/** Borrows a scratch string: the `count` characters (1 to 256) of `text` from `position`, counted
 *  from 1, or none when the text ends before it. The result has 257 bytes and stays valid until 64
 *  further calls were made. Main thread only. */
char* MidString(const char* text, int32 position, int32 count);

}  // namespace linewright
