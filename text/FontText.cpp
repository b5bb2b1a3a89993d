#include "text/FontText.h"

#include "text/FontCharacters.h"
#include "text/Utf8.h"

namespace linewright {

std::string FontText(std::string_view fontString) {
    std::string text;
    text.reserve(fontString.size());
    for (const char byte : fontString) {
        if (byte >= ' ' && byte <= '~') {
            text += byte;
        } else {
            AppendUtf8(text, FontCharacter(static_cast<unsigned char>(byte)));
        }
    }
    return text;
}

std::optional<std::string> FontStringFromText(std::string_view text) {
    std::string fontString;
    // What is not UTF-8 comes as U+FFFD, which has no byte.
    for (const char32_t character : CharactersFromUtf8(text)) {
        const auto byte = ByteOfFontCharacter(character);
        if (!byte) return std::nullopt;
        fontString += static_cast<char>(*byte);
    }
    return fontString;
}

}  // namespace linewright
