#pragma once

#include <freetype/freetype.h>

#include <filesystem>

namespace linewright {

/** Throws a DrawingFailure unless there is no error. */
void CheckFreeType(FT_Error error);

/** The face of a font file, which FT_Done_Face closes; gives an error where there is none. */
FT_Error OpenFace(const std::filesystem::path& file, FT_Face& face);

/** The one that lives as long as the program. */
FT_Library FreeTypeLibrary();

}  // namespace linewright
