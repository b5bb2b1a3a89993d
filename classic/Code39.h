#pragma once

#include "core/DataBlock.h"
#include "core/FixedText.h"
#include "core/PString.h"

namespace linewright {

// Code 39 (ISO/IEC 16388) for the classic font: start character, data, check character, stop
// character. A space is written as "!".

/** What the symbol holds beside its data. */
struct ClassicCode39Options {
    bool fullAscii;
    /** 0 no check character, 1 modulo 10 and digits only, else modulo 43. */
    uint16 checkMode;
    /** "*" as start and stop character, else "#". */
    bool useAsterisk;
};

/** Start character, data, check character, stop character. */
constexpr std::size_t kCode39ClassicCapacity = 1 + kMaxPStringLength + 2;

/** Appends the symbol. The result is empty or, where there is none, what stands in its place:
 *  "***Bad Code 39***" for data of more than 255 bytes (127 in full ASCII) or with a character that
 *  cannot be encoded. */
std::string_view BuildCode39Classic(std::string_view data, const ClassicCode39Options& options,
                                    TextArea& symbol);

/** Replaces the data by the symbol's font string, status 0, or by what stands in its place, status
 *  -1. */
int16 EncodeCode39Classic(DataBlock data, const ClassicCode39Options& options);

/** Service, no caller of our own: writes the characters of a string as the pairs of full ASCII Code
 *  39; byte 128 is dropped. 0, or -1 with the string left alone: a byte above 128. What exceeds 255
 *  characters is cut. */
int32 ExpandCode39FullAscii(PString& string);

}  // namespace linewright
