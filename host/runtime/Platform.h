#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <optional>

// What differs from system to system.

namespace host {

/** The folder of the running program; none when the system does not tell. */
std::optional<std::filesystem::path> ProgramFolder();
/** Where the user's programs keep their settings; none when the system does not tell. */
std::optional<std::filesystem::path> UserSettingsFolder();
/** Opens a file for reading its bytes; the caller closes it. nullptr, and errno says why, when that
 *  does not work or when it is a folder, a device or a pipe. */
std::FILE* OpenFile(const std::filesystem::path& path);

bool StandardErrorIsTerminal();

/** Makes the address sanitizer, if there is one, object to any use of a range; and lifts that. */
void ForbidUse(const void* start, std::size_t size);
void AllowUse(const void* start, std::size_t size);

}  // namespace host
