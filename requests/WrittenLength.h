#pragma once

#include <optional>
#include <string_view>

#include "requests/DrawingWish.h"

namespace linewright {

/** A length as people write it: "0.33mm", "10mil", "12pt", "0.5in", "1cm" or "10x" (times the
 *  narrowest bar); a number alone is millimetres. None for what is no length. */
std::optional<Length> FindLength(std::string_view text, bool isZeroAllowed = false);

/** A length, or per cent of the narrowest bar; zero too. */
std::optional<Length> FindReduction(std::string_view text);

}  // namespace linewright
