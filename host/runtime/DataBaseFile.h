#pragma once

#include <filesystem>
#include <map>
#include <utility>

#include "host/runtime/BossClass.h"
#include "host/runtime/MemoryStream.h"

namespace host {

/** What a stored record belongs to. */
using StorageKey = std::pair<ClassID, ImplementationID>;
using Records = std::map<StorageKey, Bytes>;

/** Reads the file of a database: "LWDB", and for each record its class, implementation, size
 * (32-bit integers, little-endian) and bytes. No file holds no records, nor does one that
 * cannot be read, which is said on standard error. Throws std::runtime_error for a damaged one. */
Records ReadRecords(const std::filesystem::path& file);

/** Replaces the file, whole or not at all; false on a failure, as for one that could not be read.
 */
bool WriteRecords(const std::filesystem::path& file, const Records& records);

}  // namespace host
