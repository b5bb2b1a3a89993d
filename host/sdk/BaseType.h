#pragma once

#include <cstdint>

// The host's basic types. `long` is avoided throughout: it has 32 bits on Windows and 64 elsewhere.

using int8 = std::int8_t;
using int16 = std::int16_t;
using int32 = std::int32_t;
using int64 = std::int64_t;
using uint8 = std::uint8_t;
using uint16 = std::uint16_t;
using uint32 = std::uint32_t;
using uint64 = std::uint64_t;

using bool16 = int16;
constexpr bool16 kFalse = 0;
constexpr bool16 kTrue = 1;

using ErrorCode = int32;
constexpr ErrorCode kSuccess = 0;
constexpr ErrorCode kFailure = 1;

using UTF32TextChar = uint32;

using OSType = uint32;
using RsrcType = OSType;
using RsrcID = int32;

/** A four-character code such as 'VIEW', made without a multi-character literal. */
constexpr OSType FourCharCode(char a, char b, char c, char d) {
    return (static_cast<OSType>(static_cast<uint8>(a)) << 24) |
           (static_cast<OSType>(static_cast<uint8>(b)) << 16) |
           (static_cast<OSType>(static_cast<uint8>(c)) << 8) |
           static_cast<OSType>(static_cast<uint8>(d));
}

/** Marks what the host's library exports; the build of that library says how. */
#ifndef PUBLIC_DECL
#define PUBLIC_DECL
#endif
