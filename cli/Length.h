#pragma once

#include <string_view>

#include "requests/DrawingWish.h"

namespace linewright {

// Lengths as people write them, see requests/WrittenLength.h. All throw Failure, naming the option.

Length LengthOf(std::string_view text, std::string_view option, bool isZeroAllowed = false);

/** The X-dimension, in points: a length that is not stated by itself. */
double XDimensionOf(std::string_view text, std::string_view option);

/** A length, or per cent of the narrowest bar. */
Length ReductionOf(std::string_view text, std::string_view option);

}  // namespace linewright
