#pragma once

#include "PMString.h"

namespace linewright {

/** "11, 13 or 16": the numbers joined by ", ", the last one by " or " (also a single one). No
 *  numbers give an empty text. */
void FormatAlternatives(const int32* list, int32 count, PMString& out);

// Service: no caller of our own.

/** sprintf: writes into a buffer that must be large enough and returns the number of characters
 *  written, or -1 on failure. */
int32 FormatInto(char* buffer, const char* format, ...);

}  // namespace linewright
