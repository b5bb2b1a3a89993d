#pragma once

#include <string>
#include <vector>

#include "cli/Console.h"

namespace linewright {

// The preferences of the plug-in, by their file. The host must be running: the plug-in has then
// made sure that the file is there and valid.

/** Prints where the file lies and what it says, in words. */
ExitStatus RunPrefs(Console& console);

/** Changes preferences by texts of the form NAME=VALUE and writes the file; all of them or, with a
 *  Failure, none. */
ExitStatus RunPrefsSet(const std::vector<std::string>& assignments, Console& console);

/** All preferences with their values, a line each. */
std::string PreferencesText();

}  // namespace linewright
