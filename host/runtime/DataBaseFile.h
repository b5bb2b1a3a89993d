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
 * (32-bit integers, little-endian) and bytes. No file holds no records. Throws std::runtime_error
 * for one that is damaged or cannot be read. */
Records ReadRecords(const std::filesystem::path& file);

/** Replaces the file, whole or not at all; false on a failure. */
bool WriteRecords(const std::filesystem::path& file, const Records& records);

}  // namespace host
