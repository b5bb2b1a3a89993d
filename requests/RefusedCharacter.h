#pragma once

#include <cstddef>
#include <optional>

#include "requests/BarcodeOutcome.h"

namespace linewright {

/** Where the character stands, in bytes from 0, for which the plug-in refused data; none where the
 *  data was not refused, or for something else. Asks the plug-in, which knows: what it says when
 * the data's end is zeros. Throws RequestFailure. */
std::optional<std::size_t> RefusedCharacter(Service& service, const BarcodeWish& wish,
                                            const BarcodeOutcome& outcome);

}  // namespace linewright
