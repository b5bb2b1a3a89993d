#pragma once

#include <string>

#include "cli/Console.h"

namespace linewright {

/** Which font belongs to which types, and its size. `fonts` is the folder of their files, UTF-8. */
ExitStatus RunFontsList(const std::string& fonts, Console& console);

/** Installs the static fonts for the user. Throws Failure. */
ExitStatus RunFontsInstall(const std::string& fonts, Console& console);

}  // namespace linewright
