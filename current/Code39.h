#pragma once

#include "core/EncoderTable.h"
#include "current/BuilderText.h"

namespace linewright {

// Code 39 (ISO/IEC 16388) for the bars font.

/** Five letters for each character: start, data, check character and stop. */
constexpr std::size_t kCode39Capacity = 5 * (kMaxBuilderText + 3);

/** Appends the symbol; kEncoded, kNoData or kEmptyData. Lower-case letters count as capitals, and
 *  characters that Code 39 does not have are dropped. */
int16 BuildCode39Current(std::string_view data, double ratio, bool addCheckCharacter,
                         TextArea& symbol);

/** The type's encoder: up to 255 characters of Code 39. */
int32 EncodeCode39Current(const EncoderArguments& arguments);

}  // namespace linewright
