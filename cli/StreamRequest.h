#pragma once

#include <string_view>

#include "requests/Service.h"

namespace linewright {

/**
 * One line of `linewright stream`: a JSON object with `type` or `typeHex`, `data` (text, to be
 * converted) or `hex` (bytes, converted only with `utf8`), and perhaps `check` (0 to 255 or a
 * boolean) and `ratio`. Throws Failure with a sentence for anything else.
 */
EncodeRequest ParseStreamRequest(std::string_view line);

}  // namespace linewright
