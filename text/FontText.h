#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace linewright {

/** A font string as text that a person can copy and that upsets no terminal and no file, in UTF-8:
 *  each byte as its FontCharacter. */
std::string FontText(std::string_view fontString);

/** The same, behind a text. */
void AppendFontText(std::string& text, std::string_view fontString);

/** The font string that text in UTF-8, set in a barcode font, draws; none when a character has no
 *  byte or a byte is not UTF-8. */
std::optional<std::string> FontStringFromText(std::string_view text);

}  // namespace linewright
