#include "text/Utf8.h"

namespace linewright {

namespace {

struct Lead {
    std::size_t length;
    unsigned char secondFrom;
    unsigned char secondTo;
};

/** What a lead byte asks for: the length, and the range of the second byte, which keeps out
 *  overlong forms, surrogates and what lies above U+10FFFF. */
Lead LeadOf(unsigned char byte) {
    if (byte < 0x80) return {1, 0, 0};
    if (byte < 0xC2) return {0, 0, 0};
    if (byte < 0xE0) return {2, 0x80, 0xBF};
    if (byte == 0xE0) return {3, 0xA0, 0xBF};
    if (byte == 0xED) return {3, 0x80, 0x9F};
    if (byte < 0xF0) return {3, 0x80, 0xBF};
    if (byte == 0xF0) return {4, 0x90, 0xBF};
    if (byte < 0xF4) return {4, 0x80, 0xBF};
    if (byte == 0xF4) return {4, 0x80, 0x8F};
    return {0, 0, 0};
}

struct Character {
    char32_t value;
    std::size_t length;
};

/** The well-formed character that `bytes`, of which there is one, begin with. */
std::optional<Character> FirstCharacter(std::string_view bytes) {
    const auto byteAt = [bytes](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
    const Lead lead = LeadOf(byteAt(0));
    if (lead.length == 0 || lead.length > bytes.size()) return std::nullopt;
    if (lead.length == 1) return Character{byteAt(0), 1};
    if (byteAt(1) < lead.secondFrom || byteAt(1) > lead.secondTo) return std::nullopt;
    char32_t value = byteAt(0) & (0x7FU >> lead.length);
    for (std::size_t i = 1; i < lead.length; ++i) {
        if ((byteAt(i) & 0xC0) != 0x80) return std::nullopt;
        value = value << 6 | (byteAt(i) & 0x3FU);
    }
    return Character{value, lead.length};
}

bool IsScalarValue(char32_t character) {
    return character < 0xD800 || (character > 0xDFFF && character <= 0x10FFFF);
}

}  // namespace

void AppendUtf8(std::string& text, char32_t character) {
    if (!IsScalarValue(character)) character = kReplacementCharacter;
    const auto append = [&text](char32_t byte) { text += static_cast<char>(byte); };
    if (character < 0x80) {
        append(character);
        return;
    }
    if (character < 0x800) {
        append(0xC0 | (character >> 6));
    } else {
        if (character < 0x10000) {
            append(0xE0 | (character >> 12));
        } else {
            append(0xF0 | (character >> 18));
            append(0x80 | ((character >> 12) & 0x3F));
        }
        append(0x80 | ((character >> 6) & 0x3F));
    }
    append(0x80 | (character & 0x3F));
}

std::optional<std::size_t> FirstInvalidUtf8(std::string_view bytes) {
    std::size_t position = 0;
    while (position < bytes.size()) {
        const auto character = FirstCharacter(bytes.substr(position));
        if (!character) return position;
        position += character->length;
    }
    return std::nullopt;
}

std::u32string CharactersFromUtf8(std::string_view bytes) {
    std::u32string characters;
    characters.reserve(bytes.size());
    while (!bytes.empty()) {
        const Character character =
            FirstCharacter(bytes).value_or(Character{kReplacementCharacter, 1});
        characters += character.value;
        bytes.remove_prefix(character.length);
    }
    return characters;
}

std::string Utf8FromCharacters(std::u32string_view characters) {
    std::string text;
    for (const char32_t character : characters) AppendUtf8(text, character);
    return text;
}

std::string Utf8FromLatin1(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes) AppendUtf8(text, static_cast<unsigned char>(byte));
    return text;
}

}  // namespace linewright
