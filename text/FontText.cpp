#include "text/FontText.h"

#include <algorithm>

#include "text/FontCharacters.h"
#include "text/Utf8.h"

namespace linewright {

namespace {

bool StandsForItself(char byte) {
    return byte >= ' ' && byte <= '~';
}

}  // namespace

void AppendFontText(std::string& text, std::string_view fontString) {
    while (!fontString.empty()) {
        const auto* const other =
            std::find_if_not(fontString.begin(), fontString.end(), StandsForItself);
        const auto plain = static_cast<std::size_t>(other - fontString.begin());
        text += fontString.substr(0, plain);
        if (plain == fontString.size()) return;
        AppendUtf8(text, FontCharacter(static_cast<unsigned char>(fontString[plain])));
        fontString.remove_prefix(plain + 1);
    }
}

std::string FontText(std::string_view fontString) {
    std::string text;
    AppendFontText(text, fontString);
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
