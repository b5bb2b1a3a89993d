#pragma once

#include "core/EncoderTable.h"
#include "current/BuilderText.h"

namespace linewright {

// Postnet for a font of two-height bars that draws two bars with one letter.

/** A letter for each frame bar, three for each digit and for the check digit. */
constexpr std::size_t kPostnetCapacity = 1 + 3 * (kMaxBuilderText + 1) + 1;

/** Appends the symbol of the digits in the data; kEncoded, kNoData or kEmptyData. Any number of
 *  digits will do, also none. */
int16 BuildPostnetCurrent(std::string_view data, bool addCheckDigit, TextArea& symbol);

/** The type's encoder: up to 255 characters, of which the digits count. Other data is replaced by
 *  "***Bad Zip Code***", with status -1 when it is too long and the builder's when it is empty.
 *  Hint and human-readable text are not touched. */
int32 EncodePostnetCurrent(const EncoderArguments& arguments);

}  // namespace linewright
