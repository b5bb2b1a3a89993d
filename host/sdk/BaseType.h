#pragma once

#include <cstdint>

// The host's basic types. `long` is avoided throughout: it has 32 bits on Windows and 64 elsewhere.

typedef std::int8_t int8;
typedef std::int16_t int16;
typedef std::int32_t int32;
typedef std::int64_t int64;
typedef std::uint8_t uint8;
typedef std::uint16_t uint16;
typedef std::uint32_t uint32;
typedef std::uint64_t uint64;

typedef int16 bool16;
constexpr bool16 kFalse = 0;
constexpr bool16 kTrue = 1;

typedef int32 ErrorCode;
constexpr ErrorCode kSuccess = 0;
constexpr ErrorCode kFailure = 1;

typedef uint32 UTF32TextChar;

typedef uint32 OSType;
typedef OSType RsrcType;
typedef int32 RsrcID;

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
