#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "cli/Console.h"

namespace linewright {

/**
 * The whole command: reads the arguments (UTF-8, without the program's name), starts host and
 * plug-in, does the work and returns the exit status. `programFolder` is where the program lies:
 * the plug-in is looked for from there. Throws nothing.
 */
int RunCommand(const std::vector<std::string>& arguments,
               const std::filesystem::path& programFolder, Console& console) noexcept;

}  // namespace linewright
