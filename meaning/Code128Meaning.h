#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "meaning/Meaning.h"

namespace linewright::verify {

/** Warns where the check character of a classic symbol is wrong because the sum of start value and
 *  weighted character values, kept in 16 bits, went over. `characters` are the symbol's, of which
 *  the value is the byte - 32, or + 64 below 32. */
void AddSumWarning(std::vector<std::string>& warnings, int startValue, std::string_view characters);

/** Code 128 with automatic choice of the sets: escapes, GS1 element strings and function
 *  characters. */
void SetCode128Automatic(Meaning& meaning, const EncodedData& encoded);

}  // namespace linewright::verify
