#pragma once

#include <string>
#include <vector>

#include "tests/current/Elements.h"

namespace linewright {

/** What Code 128 elements (without light ones at the end) stand for: bytes, with function
 *  characters as "<FNC1>" to "<FNC4>". Throws std::runtime_error where they are no
 *  symbol: another pattern, a check character that does not fit, no start or stop. */
std::string DecodeCode128(const Elements& elements);

}  // namespace linewright
