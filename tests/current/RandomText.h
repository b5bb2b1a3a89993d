#pragma once

#include <random>
#include <string>
#include <string_view>

namespace linewright {

/** Text of random characters of an alphabet; the same everywhere for the same state of `random`. */
inline std::string RandomText(std::mt19937& random, std::string_view alphabet, std::size_t shortest,
                              std::size_t longest) {
    const std::size_t length = shortest + random() % (longest - shortest + 1);
    std::string text;
    while (text.size() < length) text += alphabet[random() % alphabet.size()];
    return text;
}

}  // namespace linewright
