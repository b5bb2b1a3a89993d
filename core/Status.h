#pragma once

#include "BaseType.h"

namespace linewright {

// Statuses of an encoding: 0 is success, any other value a failure. Encoders may return values of
// their own beside these; the caller sees 16 bits.

constexpr int16 kEncoded = 0;
/** The length of the data is not allowed. */
constexpr int16 kBadLength = -6300;
/** A character is not allowed in the data. */
constexpr int16 kInvalidData = -6301;
/** An encoder failed, or there was no memory for its result. */
constexpr int16 kInternalError = -6302;
/** A classic encoder refused the data. */
constexpr int16 kBadData = -1;
/** A current-family builder was given empty data. */
constexpr int16 kEmptyData = 1000;
/** A current-family builder was given no data at all. */
constexpr int16 kNoData = 1100;

}  // namespace linewright
