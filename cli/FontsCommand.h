#pragma once

#include <optional>
#include <string>

#include "cli/Console.h"

namespace linewright {

/** Which font belongs to which types, and its size. `fonts` is the folder of their files, UTF-8. */
ExitStatus RunFontsList(const std::string& fonts, Console& console);

/** The font, its style and its size in points for each type with bars, as a JSON array, at the
 * types' own X-dimensions or at one, in points. */
ExitStatus RunFontsListJson(std::optional<double> xDimension, Console& console);

/** Installs the static fonts for the user. Throws Failure. */
ExitStatus RunFontsInstall(const std::string& fonts, Console& console);

}  // namespace linewright
