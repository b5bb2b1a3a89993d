#pragma once

#include <string>

namespace linewright {

// Where things lie beside this library, in the build tree, in an installation and in a package of
// Python's alike. UTF-8.

std::string UsualPlugIn();
std::string UsualFonts();

}  // namespace linewright
