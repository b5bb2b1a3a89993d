#pragma once

#include "core/EncoderTable.h"
#include "current/BuilderText.h"

namespace linewright {

// Codabar (ANSI/AIM BC3, EN 798) for the bars font.

/** Four letters for each character: start, data and stop. */
constexpr std::size_t kCodabarCapacity = 4 * (kMaxBuilderText + 2);

/** Appends the symbol; kEncoded, kNoData or kEmptyData. `start` and `stop` are "A", "B", "C" or
 *  "D"; anything else counts as "A". Characters that Codabar does not have are dropped. */
int16 BuildCodabarCurrent(std::string_view data, double ratio, const char* start, const char* stop,
                          TextArea& symbol);

/** The type's encoder: 4 to 255 data characters, between "A" and "B". */
int32 EncodeCodabarCurrent(const EncoderArguments& arguments);

}  // namespace linewright
