#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <type_traits>

#include "core/CharacterLetters.h"
#include "current/FontLetters.h"

namespace linewright {

/** The bars font draws a bar and the space behind it with one letter, from a set of four for each
 *  wide-to-narrow ratio. */
class PairGlyphs {
  public:
    /** The letters in the order of current::kPairLetters20. */
    constexpr explicit PairGlyphs(std::string_view letterSet) : letters(letterSet) {}

    /** The letter of a bar and a space, each "n" (narrow) or "w" (wide). */
    constexpr char Of(char bar, char space) const {
        const std::size_t wideBar = bar == 'w' ? 2 : 0;
        const std::size_t wideSpace = space == 'w' ? 1 : 0;
        return letters[wideBar + wideSpace];
    }

    /** The letters of a pattern of "n" and "w" (bar, space, bar, ...). A bar at its end is followed
     *  by a narrow gap. */
    constexpr Word Of(std::string_view pattern) const {
        Word word = 0;
        for (std::size_t bar = 0; bar < pattern.size(); bar += 2) {
            const char space = bar + 1 < pattern.size() ? pattern[bar + 1] : 'n';
            word |= Word{static_cast<unsigned char>(Of(pattern[bar], space))} << 4 * bar;
        }
        return word;
    }

  private:
    std::string_view letters;  // narrow-narrow, narrow-wide, wide-narrow, wide-wide
};

/** The letters of a symbology: what `make` makes of the glyphs for each ratio that the font has. */
template <class Make>
struct LettersByRatio {
    using Letters = std::invoke_result_t<Make, PairGlyphs>;

    constexpr explicit LettersByRatio(Make make)
        : letters{make(PairGlyphs(current::kPairLetters20)),
                  make(PairGlyphs(current::kPairLetters25)),
                  make(PairGlyphs(current::kPairLetters30))} {}

    /** The letters for 3.0, 2.5 or 2.0; any other ratio counts as 2.0. */
    constexpr const Letters& For(double ratio) const {
        return letters[ratio == 3.0 ? 2 : ratio == 2.5 ? 1 : 0];
    }

    std::array<Letters, 3> letters;
};

}  // namespace linewright
