#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "standards/TableChecks.h"

namespace linewright {

/** ISO/IEC 16390:2007, table 1: five elements of each digit, narrow or wide. In a pair of digits
 *  the first one's elements are the bars and the second one's the spaces. */
inline constexpr std::array<std::string_view, 10> kInterleaved2of5Patterns{
    // 0
    "nnwwn", "wnnnw", "nwnnw", "wwnnn", "nnwnw", "wnwnn", "nwwnn", "nnnww", "wnnwn", "nwnwn",
};

/** The rule behind the table: the elements weigh 1, 2, 4, 7 and 0 (the fifth makes two wide ones),
 *  the wide ones' weights add up to the digit, and 4 + 7 stand for 0. */
constexpr bool IsInterleaved2of5Table() {
    constexpr std::array<std::size_t, 5> kWeights{1, 2, 4, 7, 0};
    for (std::size_t digit = 0; digit < kInterleaved2of5Patterns.size(); ++digit) {
        const std::string_view pattern = kInterleaved2of5Patterns[digit];
        if (pattern.size() != 5 || !ConsistsOf(pattern, "nw")) return false;
        if (WideBars(pattern) + WideSpaces(pattern) != 2) return false;
        std::size_t sum = 0;
        for (std::size_t element = 0; element < pattern.size(); ++element) {
            if (pattern[element] == 'w') sum += kWeights[element];
        }
        if (sum % 11 != digit) return false;
    }
    return true;
}

static_assert(IsInterleaved2of5Table());
static_assert(AllDifferent(kInterleaved2of5Patterns));

}  // namespace linewright
