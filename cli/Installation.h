#pragma once

#include <filesystem>
#include <string>

namespace linewright {

// Where things lie, from the program's place on: in the build tree and in an installation alike.

std::filesystem::path PlugInFile();
/** A library of the command's own. */
std::filesystem::path ModuleFile(const std::string& name);
std::filesystem::path FontFolder();

}  // namespace linewright
