#pragma once

#include <string>
#include <string_view>

#include "requests/Service.h"

namespace linewright {

/**
 * One line of `linewright stream`: a JSON object with `type` or `typeHex`, `data` (text, to be
 * converted) or `hex` (bytes, converted only with `utf8`), and perhaps `check` (0 to 255 or a
 * boolean), `ratio` and `id`, each of them once. Throws Failure with a sentence for anything else.
 * `id` receives that member as JSON text, also where this throws; "" where there is none.
 */
EncodeRequest ParseStreamRequest(std::string_view line, std::string& id);

}  // namespace linewright
