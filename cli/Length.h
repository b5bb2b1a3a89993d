#pragma once

#include <string_view>

#include "requests/DrawingWish.h"

namespace linewright {

/** A length as people write it: "0.33mm", "10mil", "12pt", "0.5in", "1cm" or "10x" (times the
 *  narrowest bar); a number alone is millimetres. Throws Failure, naming the option. */
Length LengthOf(std::string_view text, std::string_view option, bool isZeroAllowed = false);

/** The X-dimension, in points: a length that is not stated by itself. */
double XDimensionOf(std::string_view text, std::string_view option);

/** A length, or per cent of the narrowest bar. */
Length ReductionOf(std::string_view text, std::string_view option);

}  // namespace linewright
