#pragma once

#include <string>
#include <string_view>

namespace linewright::meaning {

/** Modulo 43 of Code 39 characters (ISO/IEC 16388, annex A); others count as 0. */
char Modulo43(std::string_view text);

/** The modulo 10 that the classic type offers: every other digit doubled, from the first one on. */
char Modulo10FromLeft(std::string_view digits);

/** Text in the pairs of full ASCII Code 39 (ISO/IEC 16388, annex A). What is above 127 is left out.
 */
std::string FullAscii(std::string_view text);

}  // namespace linewright::meaning
