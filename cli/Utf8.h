#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace linewright {

/** Appends one character in UTF-8; what is no Unicode scalar value becomes U+FFFD. */
void AppendUtf8(std::string& text, char32_t character);

/** The number of bytes of the well-formed UTF-8 character that begins at `position`; 0 where none
 *  does (Unicode standard, table 3-7). */
std::size_t Utf8CharacterLength(std::string_view bytes, std::size_t position);

/** The position, from 0, of the first byte that belongs to no well-formed character. */
std::optional<std::size_t> FirstInvalidUtf8(std::string_view bytes);

/** UTF-8 that upsets no terminal and no file: control characters become their pictures (U+2400 to
 *  U+2421); those without one, and each byte that is not UTF-8, become U+FFFD. */
std::string Readable(std::string_view bytes);

/** 8-bit text, each byte the character of its value, as UTF-8. */
std::string Utf8FromLatin1(std::string_view bytes);

/** A place in the file system by its UTF-8 name, and back. */
std::filesystem::path PathFromUtf8(std::string_view name);
std::string Utf8FromPath(const std::filesystem::path& path);

}  // namespace linewright
