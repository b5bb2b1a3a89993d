#pragma once

#include <string>
#include <string_view>

#include "PMString.h"
#include "text/Utf8.h"

namespace host {

/** A host string as UTF-8. */
inline std::string ToUtf8(const PMString& text) {
    std::string utf8;
    for (int32 i = 0; i < text.CharCount(); ++i) linewright::AppendUtf8(utf8, text.GetWChar(i));
    return utf8;
}

/** UTF-8 as plain text; each byte that belongs to no well-formed character becomes U+FFFD. */
inline PMString PlainText(std::string_view utf8) {
    PMString text;
    for (const char32_t character : linewright::CharactersFromUtf8(utf8)) text.AppendW(character);
    return text;
}

}  // namespace host
