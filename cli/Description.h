#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace linewright {

/** The whole command as a JSON object, of which manual page and completions are made: `name`,
 * `version`, `description`, `footer`, `arguments`, `options` and `commands`, each of which is such
 * an object, and `types`, the short names of the types. What --help does not show is left out. */
std::string DescriptionOf(const CLI::App& app, const std::string& version);

}  // namespace linewright
