#pragma once

#include <filesystem>

namespace linewright {

// Where things lie, from the program's place on: in the build tree and in an installation alike.

std::filesystem::path PlugInFile();
std::filesystem::path DrawingModuleFile();
std::filesystem::path FontFolder();

}  // namespace linewright
