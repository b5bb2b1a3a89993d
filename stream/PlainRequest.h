#pragma once

#include <optional>
#include <string>

#include "stream/StreamRequest.h"

namespace linewright {

/**
 * Reads most lines as ParseStreamRequest does, several times as fast and with no more memory than
 * the data has. None for what it does not know, which may be a request all the same: then the line
 * stands as it was. Otherwise the line is used up.
 */
std::optional<StreamRequest> ReadPlainRequest(std::string& line, std::string& id);

}  // namespace linewright
