#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "files/WindowsHandle.h"

namespace files {

/** Opens or makes a file as OwnFile has them, by its long path; one without a file says in `error`
 *  why. */
Handle OpenOwn(const std::filesystem::path& path, std::string& error);

/** Leaves the first `size` bytes, behind which it is written on. */
bool CutAt(HANDLE file, std::uint64_t size);

/** Writes all bytes; false where the system does not, which GetLastError tells. */
bool WriteAll(HANDLE file, std::string_view bytes);

}  // namespace files
