#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace linewright {

/** The whole command in JSON, of which manual page and completions are made: each command's `name`,
 *  `description`, `footer`, `options` (arguments have names without dashes) and `commands`; for the
 *  whole also `version` and `types`, the short names. What --help does not show is left out. */
std::string DescriptionOf(const CLI::App& app, const std::string& version);

}  // namespace linewright
