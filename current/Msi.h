#pragma once

#include "core/EncoderTable.h"
#include "current/BuilderText.h"

namespace linewright {

// MSI Plessey for the bars font.

/** A letter for the start, four for each digit and for the check digit, two for the stop. */
constexpr std::size_t kMsiCapacity = 1 + 4 * (kMaxBuilderText + 1) + 2;

/** Service, no caller of our own: the modulo-10 check digit of the digits in a text, as a C string
 *  that stays valid until the next call. Main thread only. */
const char* MsiCheckDigit(const char* digits);

/** Appends the symbol of the digits in the data; kEncoded, kNoData, or kEmptyData where there is no
 *  digit. */
int16 BuildMsiCurrent(std::string_view data, double ratio, bool addCheckDigit, TextArea& symbol);

/** The type's encoder: up to 255 digits. */
int32 EncodeMsiCurrent(const EncoderArguments& arguments);

}  // namespace linewright
