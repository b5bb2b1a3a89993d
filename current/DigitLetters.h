#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "core/CharClasses.h"
#include "core/FixedText.h"

namespace linewright {

/** The letters of digits in a symbology that has up to four letters for each; they are written for
 *  two digits at once. */
template <std::size_t kLettersPerDigit>
class DigitLetters {
  public:
    constexpr DigitLetters() = default;
    /** @param letters  by the value of a digit */
    constexpr explicit DigitLetters(const std::array<Word, 10>& letters) {
        static_assert(2 * kLettersPerDigit <= kWordSize);
        for (std::size_t pair = 0; pair < pairs.size(); ++pair)
            pairs[pair] = letters[pair / 10] | letters[pair % 10] << 8 * kLettersPerDigit;
    }

    void AppendTo(LetterWriter& symbol, char digit) const {
        symbol.Append(pairs[PairValue(digit, '0')], kLettersPerDigit);
    }
    void AppendTo(LetterWriter& symbol, std::string_view digits) const {
        const std::size_t paired = digits.size() / 2 * 2;
        for (std::size_t place = 0; place < paired; place += 2)
            symbol.Append(pairs[PairValue(digits[place], digits[place + 1])], 2 * kLettersPerDigit);
        if (paired < digits.size()) AppendTo(symbol, digits.back());
    }

  private:
    std::array<Word, 100> pairs{};
};

}  // namespace linewright
