#pragma once

#include <string>
#include <string_view>

#include "requests/Service.h"

namespace linewright {

/** One line of `linewright stream`. */
struct StreamRequest {
    EncodeRequest encode{};
    /** Whether the data is an article number, to be brought to the type's form. */
    bool isArticleNumber = false;
    bool areWarningsWanted = false;
};

/**
 * Reads a JSON object with `type` or `typeHex`, `data` (text, to be converted) or `hex` (bytes,
 * converted only with `utf8`), and perhaps `check` (0 to 255 or a boolean), `ratio`, `gtin` and
 * `warnings` (booleans) and `id`, each of them once. Throws Failure with a sentence for anything
 * else. `id` receives that member as JSON text, also where this throws; "" where there is none.
 */
StreamRequest ParseStreamRequest(std::string_view line, std::string& id);

}  // namespace linewright
