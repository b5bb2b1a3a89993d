#pragma once

#include <cstddef>
#include <string_view>

#include "BaseType.h"
#include "core/CharClasses.h"
#include "core/FixedText.h"
#include "core/Status.h"

namespace linewright {

// How builders read their text, which holds no NUL. A text whose data() is nullptr is none at all.

/** The most characters of its text that a builder works on. */
constexpr std::size_t kMaxBuilderText = 512;

/** kNoData for no text, kEmptyData for one without characters, otherwise kEncoded. */
constexpr int16 TextStatus(std::string_view text) {
    if (!text.data()) return kNoData;
    return text.empty() ? kEmptyData : kEncoded;
}

constexpr std::string_view FirstCharacters(std::string_view text,
                                           std::size_t most = kMaxBuilderText) {
    return text.substr(0, most);
}

/** Appends the first decimal digits of a text, `most` of them. */
void AppendDigits(std::string_view text, std::size_t most, TextArea& digits);

/** The same: a part of the text that is nothing else, or put together in `spare`. */
inline std::string_view OnlyDigits(std::string_view text, std::size_t most, TextArea& spare) {
    if (AreDigits(text)) return text.substr(0, most);
    AppendDigits(text, most, spare);
    return spare.View();
}

}  // namespace linewright
