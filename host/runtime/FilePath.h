#pragma once

#include <filesystem>

#include "IDFile.h"

namespace host {

std::filesystem::path PathOf(const IDFile& file);
void SetPath(IDFile& file, const std::filesystem::path& path);

}  // namespace host
