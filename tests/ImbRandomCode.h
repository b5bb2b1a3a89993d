#pragma once

#include <cstddef>
#include <random>
#include <string>

#include "tests/ImbDecoder.h"

namespace linewright {

inline constexpr std::size_t kImbRoutingLengths[] = {0, 5, 9, 11};

inline std::string RandomDigits(std::mt19937& random, std::size_t length) {
    std::string digits;
    while (digits.size() < length) digits += static_cast<char>('0' + random() % 10);
    return digits;
}

/** A valid code; the same on every platform for the same state of `random`. */
inline ImbCode RandomImbCode(std::mt19937& random, std::size_t routingLength) {
    ImbCode code{RandomDigits(random, 20), RandomDigits(random, routingLength)};
    code.tracking[1] = static_cast<char>('0' + random() % 5);
    return code;
}

}  // namespace linewright
