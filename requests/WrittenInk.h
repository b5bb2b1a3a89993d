#pragma once

#include <optional>
#include <string_view>

#include "render/Export.h"

namespace linewright {

/** An ink as people write it: "black", "cmyk:C,M,Y,K" in per cent, or the name of a spot colour.
 * None for what is no ink. */
std::optional<Ink> FindInk(std::string_view text);

}  // namespace linewright
