#pragma once

#include <optional>

namespace linewright {

// Where the barcode fonts have the glyph of each byte of a font string, see docs/fonts.md.

/** The character that shows a byte as text: bytes 32 to 126 stand for themselves, those above 127
 *  are the characters that Windows-1252 has for them or, where it has none, U+F000 + byte; 0 to 31
 *  are U+2400 + byte and 127 is U+2421. Each font has the byte's glyph there. */
char32_t FontCharacter(unsigned char byte);

/** The byte whose glyph the fonts have at a character: besides FontCharacter's, U+0080 to U+00FF
 *  and, for bytes without an ASCII picture, U+F000 + byte. None for any other. */
std::optional<unsigned char> ByteOfFontCharacter(char32_t character);

}  // namespace linewright
