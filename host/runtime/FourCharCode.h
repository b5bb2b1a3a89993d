#pragma once

#include "BaseType.h"

namespace host {

/** A four-character code such as 'VIEW', made without a multi-character literal. */
constexpr OSType FourCharCode(char a, char b, char c, char d) {
    return (static_cast<OSType>(static_cast<uint8>(a)) << 24) |
           (static_cast<OSType>(static_cast<uint8>(b)) << 16) |
           (static_cast<OSType>(static_cast<uint8>(c)) << 8) |
           static_cast<OSType>(static_cast<uint8>(d));
}

}  // namespace host
