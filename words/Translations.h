#pragma once

#include <fmt/format.h>

#include <array>
#include <string_view>

#include "words/Words.h"

namespace linewright {

/** One sentence in the languages, in the order of Language; {0}, {1} are its parameters. */
using Translations = std::array<std::string_view, 4>;

template <class... Parameters>
std::string Filled(const Translations& translations, Language language,
                   const Parameters&... parameters) {
    return fmt::format(fmt::runtime(translations[static_cast<std::size_t>(language)]),
                       parameters...);
}

}  // namespace linewright
