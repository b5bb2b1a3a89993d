#pragma once

#include <string>
#include <vector>

#include "cli/Console.h"

namespace linewright {

/**
 * The whole command: reads the arguments (UTF-8, without the program's name), starts host and
 * plug-in, does the work and returns the exit status. Throws nothing.
 */
int RunCommand(const std::vector<std::string>& arguments, Console& console) noexcept;

}  // namespace linewright
