#pragma once

#include <cstddef>
#include <string_view>

#include "BaseType.h"
#include "core/CharClasses.h"
#include "core/FixedText.h"
#include "core/Status.h"

namespace linewright {

// How builders read their text, a C string.

/** The most characters of its text that a builder works on. */
constexpr std::size_t kMaxBuilderText = 512;

/** kNoData for nullptr, kEmptyData for no characters, otherwise kEncoded. */
constexpr int16 TextStatus(const char* text) {
    if (!text) return kNoData;
    return *text ? kEncoded : kEmptyData;
}

constexpr std::string_view FirstCharacters(const char* text, std::size_t most = kMaxBuilderText) {
    return std::string_view(text).substr(0, most);
}

/** The first decimal digits of a text, `most` of them: a part of the text that is nothing else, or
 *  put together in `spare`. */
inline std::string_view OnlyDigits(std::string_view text, std::size_t most, TextArea& spare) {
    if (AreDigits(text)) return text.substr(0, most);
    for (const char character : text)
        if (IsDigit(character) && spare.View().size() < most) spare.Append(character);
    return spare.View();
}

}  // namespace linewright
