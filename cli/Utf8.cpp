#include "cli/Utf8.h"

namespace linewright {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

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

bool IsScalarValue(char32_t character) {
    return character < 0xD800 || (character > 0xDFFF && character <= 0x10FFFF);
}

/** U+0080 to U+009F: control characters without a picture. */
bool IsC1Control(std::string_view character) {
    return character.size() == 2 && character >= "\xC2\x80" && character <= "\xC2\x9F";
}

void AppendReadableByte(std::string& text, unsigned char byte) {
    if (byte < 0x20) {
        AppendUtf8(text, 0x2400U + byte);
    } else if (byte == 0x7F) {
        AppendUtf8(text, 0x2421);
    } else {
        text += static_cast<char>(byte);
    }
}

}  // namespace

void AppendUtf8(std::string& text, char32_t character) {
    if (!IsScalarValue(character)) character = kReplacement;
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

std::size_t Utf8CharacterLength(std::string_view bytes, std::size_t position) {
    const auto byteAt = [bytes](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
    const Lead lead = LeadOf(byteAt(position));
    if (lead.length < 2) return lead.length;
    if (bytes.size() - position < lead.length) return 0;
    const unsigned char second = byteAt(position + 1);
    if (second < lead.secondFrom || second > lead.secondTo) return 0;
    for (std::size_t i = 2; i < lead.length; ++i) {
        if ((byteAt(position + i) & 0xC0) != 0x80) return 0;
    }
    return lead.length;
}

std::optional<std::size_t> FirstInvalidUtf8(std::string_view bytes) {
    std::size_t position = 0;
    while (position < bytes.size()) {
        const std::size_t length = Utf8CharacterLength(bytes, position);
        if (length == 0) return position;
        position += length;
    }
    return std::nullopt;
}

std::string Readable(std::string_view bytes) {
    std::string text;
    std::size_t position = 0;
    while (position < bytes.size()) {
        const std::size_t length = Utf8CharacterLength(bytes, position);
        if (length == 0 || IsC1Control(bytes.substr(position, length))) {
            AppendUtf8(text, kReplacement);
        } else if (length == 1) {
            AppendReadableByte(text, static_cast<unsigned char>(bytes[position]));
        } else {
            text += bytes.substr(position, length);
        }
        position += length == 0 ? 1 : length;
    }
    return text;
}

std::string Utf8FromLatin1(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes) AppendUtf8(text, static_cast<unsigned char>(byte));
    return text;
}

std::filesystem::path PathFromUtf8(std::string_view name) {
    return std::filesystem::path(std::u8string(name.begin(), name.end()));
}

std::string Utf8FromPath(const std::filesystem::path& path) {
    const std::u8string name = path.u8string();
    return std::string(name.begin(), name.end());
}

}  // namespace linewright
