#pragma once

#include <string_view>

#include "BaseType.h"

namespace linewright {

/** A length-prefixed string of at most 255 characters in a 256-byte area, without terminator.
 *  Whatever makes it grow stops silently at 255. */
struct PString {
    uint8 length;
    char text[255];

    std::string_view View() const { return {text, length}; }
};
static_assert(sizeof(PString) == 256);

/** The number of characters in a PString's area: what a C string in its place may have. */
constexpr uint32 kMaxPStringLength = 255;

}  // namespace linewright
