#pragma once

#include <array>
#include <concepts>
#include <string>
#include <string_view>

#include "words/Words.h"

namespace linewright {

/** One sentence in the languages, in the order of Language; {0}, {1} are its parameters. */
using Translations = std::array<std::string_view, 4>;

inline std::string ParameterText(std::string_view text) {
    return std::string(text);
}
template <std::integral Number>
std::string ParameterText(Number number) {
    return std::to_string(number);
}

/** The sentence in a language. A parameter that is not given is empty. */
template <class... Parameters>
std::string Filled(const Translations& translations, Language language,
                   const Parameters&... parameters) {
    const std::array<std::string, sizeof...(parameters)> texts{ParameterText(parameters)...};
    std::string_view sentence = translations[static_cast<std::size_t>(language)];
    std::string filled;
    for (std::size_t brace = sentence.find('{'); brace != std::string_view::npos;
         brace = sentence.find('{')) {
        filled += sentence.substr(0, brace);
        const auto place = static_cast<std::size_t>(sentence[brace + 1] - '0');
        if (place < texts.size()) filled += texts[place];
        sentence.remove_prefix(brace + 3);
    }
    return filled.append(sentence);
}

}  // namespace linewright
