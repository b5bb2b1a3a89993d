#include "host/runtime/Utf8.h"

#include <cstddef>

namespace host {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool IsCharacter(char32_t value) {
    return value <= 0x10FFFF && !(value >= 0xD800 && value <= 0xDFFF);
}

/** The length of the sequence that a lead byte opens; 0 for any other byte. */
std::size_t SequenceLength(unsigned char lead) {
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead <= 0xDF) return 2;
    if (lead >= 0xE0 && lead <= 0xEF) return 3;
    if (lead >= 0xF0 && lead <= 0xF4) return 4;
    return 0;
}

/** Decodes the sequence that `text` begins with; false, and nothing set, if it is not well formed.
 */
bool Decode(std::string_view text, char32_t& value, std::size_t& length) {
    static constexpr unsigned char kLeadBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    static constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const auto lead = static_cast<unsigned char>(text[0]);
    const std::size_t count = SequenceLength(lead);
    if (count == 0 || count > text.size()) return false;
    char32_t decoded = lead & kLeadBits[count];
    for (std::size_t i = 1; i < count; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0) != 0x80) return false;
        decoded = decoded << 6 | (next & 0x3F);
    }
    if (decoded < kSmallest[count] || !IsCharacter(decoded)) return false;
    value = decoded;
    length = count;
    return true;
}

void AppendCharacter(std::string& text, char32_t value) {
    const auto append = [&](char32_t byte) { text += static_cast<char>(byte); };
    if (value < 0x80) {
        append(value);
    } else if (value < 0x800) {
        append(0xC0 | value >> 6);
        append(0x80 | (value & 0x3F));
    } else if (value < 0x10000) {
        append(0xE0 | value >> 12);
        append(0x80 | (value >> 6 & 0x3F));
        append(0x80 | (value & 0x3F));
    } else {
        append(0xF0 | value >> 18);
        append(0x80 | (value >> 12 & 0x3F));
        append(0x80 | (value >> 6 & 0x3F));
        append(0x80 | (value & 0x3F));
    }
}

}  // namespace

std::u32string FromUtf8(std::string_view text) {
    std::u32string result;
    while (!text.empty()) {
        char32_t value = kReplacement;
        std::size_t length = 1;
        Decode(text, value, length);
        result += value;
        text.remove_prefix(length);
    }
    return result;
}

std::string ToUtf8(std::u32string_view text) {
    std::string result;
    for (const char32_t value : text) {
        AppendCharacter(result, IsCharacter(value) ? value : kReplacement);
    }
    return result;
}

std::string ToUtf8(const PMString& text) {
    std::u32string characters;
    for (int32 i = 0; i < text.CharCount(); ++i) characters += char32_t{text.GetWChar(i)};
    return ToUtf8(characters);
}

PMString PlainText(std::string_view utf8) {
    PMString text;
    for (const char32_t value : FromUtf8(utf8)) text.AppendW(value);
    return text;
}

}  // namespace host
