#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

// What differs from system to system, and the file system in UTF-8.

namespace host {

std::filesystem::path PathFromUtf8(std::string_view text);
std::string ToUtf8(const std::filesystem::path& path);

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
