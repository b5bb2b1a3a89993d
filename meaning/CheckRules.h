#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace linewright::verify {

/** Modulo 10 with weight 3 on the last digit, then 1 and 3 in turn (ISO/IEC 15420 and 16390). */
char Modulo10(std::string_view digits);

/** Modulo 43 of Code 39 characters (ISO/IEC 16388, annex A). */
char Modulo43(std::string_view text);

/** The 11 digits of a UPC-A number without check digit for number system and six digits of UPC-E;
 *  and back, none where the number has no UPC-E form (ISO/IEC 15420, zero suppression). */
std::string ExpandedUpcE(std::string_view sevenDigits);
std::optional<std::string> SuppressedUpcE(std::string_view number);

}  // namespace linewright::verify
