#pragma once

#include <array>
#include <cstddef>

#include "core/FixedText.h"

namespace linewright {

/** The letters of a character, in front of its value and of their number, so that a character that
 * a symbology does not have is one without letters. */
class CharacterLetters {
  public:
    constexpr CharacterLetters() = default;
    constexpr CharacterLetters(Word letters, std::size_t count, std::size_t value)
        : word(letters | Word{value} << 48 | Word{count} << 56) {}

    /** The letters of two characters together, and the sum of their values. */
    constexpr CharacterLetters FollowedBy(const CharacterLetters& next) const {
        return {Letters() | next.Letters() << 8 * Count(), Count() + next.Count(),
                Value() + next.Value()};
    }

    constexpr bool HasLetters() const { return Count() != 0; }
    constexpr std::size_t Value() const { return word >> 48 & 0xFF; }
    void AppendTo(LetterWriter& symbol) const { symbol.Append(word, Count()); }

  private:
    constexpr Word Letters() const { return word & 0x0000'FFFF'FFFF'FFFF; }
    constexpr std::size_t Count() const { return word >> 56; }

    Word word = 0;  // up to six letters, the value, the number of letters
};

/** The letters of each character, by its byte. */
using Characters = std::array<CharacterLetters, 256>;

}  // namespace linewright
