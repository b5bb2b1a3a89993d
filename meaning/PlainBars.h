#pragma once

#include <string_view>

namespace linewright::meaning {

// Whether the bars of a font string, at the ratio 2, 2.5 or 3, say just the data, and the data is
// printable ASCII. They know the symbols that nearly all data makes; false is no verdict about
// others. They neither allocate nor throw.

/** Data without escapes and application identifiers. */
bool PlainlySaysCode128(std::string_view fontString, std::string_view data);
bool PlainlySaysCode39(std::string_view fontString, std::string_view data);
bool PlainlySaysCodabar(std::string_view fontString, std::string_view data);
/** An even number of digits. */
bool PlainlySaysInterleaved2of5(std::string_view fontString, std::string_view data);
bool PlainlySaysMsi(std::string_view fontString, std::string_view data);
bool PlainlySaysPostnet(std::string_view fontString, std::string_view data);

// Data of all digits, with its check digit or without.

bool PlainlySaysEan13(std::string_view fontString, std::string_view data);
bool PlainlySaysEan8(std::string_view fontString, std::string_view data);
bool PlainlySaysUpcA(std::string_view fontString, std::string_view data);
bool PlainlySaysUpcE(std::string_view fontString, std::string_view data);

}  // namespace linewright::meaning
