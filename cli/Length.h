#pragma once

#include <string_view>

namespace linewright {

/**
 * A length in points from text such as "0.33mm", "1in", "10mil", "12pt", "2cm" or, in narrowest
 * bars, "10x"; millimetres without a unit. Throws Failure, naming `option`, for anything else and
 * for what is not above 0 (or below, where `isZeroAllowed`).
 */
double LengthOf(std::string_view text, std::string_view option, double xDimension,
                bool isZeroAllowed = false);

}  // namespace linewright
