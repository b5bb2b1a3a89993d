#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace linewright {

// UTF-8 as the Unicode standard has it (table 3-7): no overlong forms, no surrogates, nothing above
// U+10FFFF. What the plug-in makes of UTF-8 is another thing, see LenientUtf8.h.

/** Stands where a character should be and is none. */
inline constexpr char32_t kReplacementCharacter = 0xFFFD;

/** Appends one character; what is no Unicode scalar value becomes U+FFFD. */
void AppendUtf8(std::string& text, char32_t character);

/** The position, from 0, of the first byte that belongs to no well-formed character. */
std::optional<std::size_t> FirstInvalidUtf8(std::string_view bytes);

/** Each byte that belongs to no well-formed character becomes U+FFFD. */
std::u32string CharactersFromUtf8(std::string_view bytes);

/** What is no Unicode scalar value becomes U+FFFD. */
std::string Utf8FromCharacters(std::u32string_view characters);

/** 8-bit text, each byte the character of its value. */
std::string Utf8FromLatin1(std::string_view bytes);

}  // namespace linewright
