#include "render/FreeType.h"

namespace linewright {

FT_Error OpenFace(const std::filesystem::path& file, FT_Face& face) {
    return FT_New_Face(FreeTypeLibrary(), file.c_str(), 0, &face);
}

}  // namespace linewright
