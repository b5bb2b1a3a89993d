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
/** A number that no other process has at this time. */
unsigned long ProcessNumber();

enum class OpenMode { kRead, kUpdate, kWrite };
/** Opens a binary file as fopen does with "rb", "r+b" and "wb"; the caller closes it. */
std::FILE* OpenFile(const std::filesystem::path& path, OpenMode mode);
/** Hands what was written to the disk itself. */
bool FlushToDisk(std::FILE* file);
/** Makes a renaming in a folder last, where the system wants that asked for. */
void FlushFolder(const std::filesystem::path& folder);

bool StandardErrorIsTerminal();

/** Makes the address sanitizer, if there is one, object to any use of a range; and lifts that. */
void ForbidUse(const void* start, std::size_t size);
void AllowUse(const void* start, std::size_t size);

}  // namespace host
