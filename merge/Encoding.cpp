#include "merge/Encoding.h"

#include <algorithm>
#include <array>

namespace linewright {

namespace {

struct NamedEncoding {
    std::string_view name;
    /** In small letters, without hyphens. */
    std::string_view plainName;
    Encoding encoding;
};

constexpr std::array kNames{
    NamedEncoding{"utf-8", "utf8", Encoding::kUtf8},
    NamedEncoding{"utf-16le", "utf16le", Encoding::kUtf16LittleEndian},
    NamedEncoding{"utf-16be", "utf16be", Encoding::kUtf16BigEndian},
    NamedEncoding{"windows-1252", "windows1252", Encoding::kWindows1252},
    NamedEncoding{"mac-roman", "macroman", Encoding::kMacRoman},
};

std::string PlainName(std::string_view name) {
    std::string plain;
    for (const char character : name) {
        if (character == '-') continue;
        plain += character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                      : character;
    }
    return plain;
}

/** Whether two-byte units whose zeros stand at places of this parity are text of lines. */
bool HasUnitsWithZerosAt(std::string_view head, std::size_t parity) {
    bool hasZero = false;
    bool hasLineEnd = false;
    bool hasWholeLineEnd = false;
    for (std::size_t place = 0; place < head.size(); ++place) {
        const char byte = head[place];
        if (byte == '\0' && place % 2 != parity) return false;
        hasZero = hasZero || byte == '\0';
        if (byte != '\n' && byte != '\r') continue;
        hasLineEnd = true;
        const std::size_t other = place ^ 1;
        hasWholeLineEnd =
            hasWholeLineEnd || (place % 2 != parity && other < head.size() && head[other] == '\0');
    }
    return hasZero && hasLineEnd == hasWholeLineEnd;
}

}  // namespace

std::optional<Encoding> EncodingOf(std::string_view name) {
    const std::string plain = PlainName(name);
    const auto found = std::find_if(kNames.begin(), kNames.end(), [&plain](const auto& known) {
        return known.plainName == plain;
    });
    if (found == kNames.end()) return std::nullopt;
    return found->encoding;
}

std::string_view NameOf(Encoding encoding) {
    return std::find_if(kNames.begin(), kNames.end(),
                        [encoding](const auto& known) { return known.encoding == encoding; })
        ->name;
}

Encoding DetectEncoding(std::string_view head) {
    if (head.starts_with("\xFF\xFE")) return Encoding::kUtf16LittleEndian;
    if (head.starts_with("\xFE\xFF")) return Encoding::kUtf16BigEndian;
    if (HasUnitsWithZerosAt(head, 1)) return Encoding::kUtf16LittleEndian;
    if (HasUnitsWithZerosAt(head, 0)) return Encoding::kUtf16BigEndian;
    return Encoding::kUtf8;
}

bool HasAllCharacters(Encoding encoding) {
    return encoding != Encoding::kWindows1252 && encoding != Encoding::kMacRoman;
}

std::size_t SizeIn(Encoding encoding, std::string_view utf8) {
    if (encoding == Encoding::kUtf8) return utf8.size();
    std::size_t characters = 0;
    std::size_t pairs = 0;
    for (const char byte : utf8) {
        if ((static_cast<unsigned char>(byte) & 0xC0) != 0x80) ++characters;
        if (static_cast<unsigned char>(byte) >= 0xF0) ++pairs;
    }
    return HasAllCharacters(encoding) ? 2 * (characters + pairs) : characters;
}

bool CanHold(Conversion& conversion, std::string_view utf8) {
    std::string converted;
    return conversion.Convert(utf8, converted) && utf8.empty();
}

}  // namespace linewright
