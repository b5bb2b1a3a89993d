#pragma once

#include "core/EncoderTable.h"
#include "current/BuilderText.h"

namespace linewright {

// Code 128 (ISO/IEC 15417) for the bars font, with automatic choice of the code sets.

/** Three letters for the start, for each byte of data and the switch in front of it, and for the
 *  check character; four for the stop. */
constexpr std::size_t kCode128AutoCapacity = 3 * (1 + 2 * kMaxBuilderText + 1) + 4;

/**
 * Appends the symbol. The bytes 195 to 198, 200 and 202 to 218 stand for function and shift
 * characters: in set B 195 is DEL, 196 FNC3, 197 FNC2, 198 Shift, 200 FNC4; from 202 on FNC1. DEL
 * itself is left out.
 *
 * @param replaceEscapes  run Code128PreParse over the data first
 * @return kEncoded, kNoData, kEmptyData, or kInternalError for more than 512 bytes and for bytes
 *         from 128 to 191, which have no character; what is appended then is not a symbol
 */
int16 BuildCode128Auto(std::string_view data, bool replaceEscapes, TextArea& symbol);

/** The type's encoder: up to 255 bytes of any value. */
int32 EncodeCode128Auto(const EncoderArguments& arguments);

}  // namespace linewright
