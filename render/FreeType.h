#pragma once

#include <freetype/freetype.h>

namespace linewright {

/** Throws a DrawingFailure unless there is no error. */
void CheckFreeType(FT_Error error);

/** The one that lives as long as the program. */
FT_Library FreeTypeLibrary();

}  // namespace linewright
