#pragma once

#include <cstddef>
#include <string_view>

#include "core/FixedText.h"
#include "current/FontLetters.h"

namespace linewright {

/** The bars font draws a bar and the space behind it with one letter, from a set of four for each
 *  wide-to-narrow ratio. */
class PairGlyphs {
  public:
    /** The letters for 3.0, 2.5 or 2.0; any other ratio counts as 2.0. */
    constexpr explicit PairGlyphs(double ratio)
        : letters(ratio == 3.0   ? current::kPairLetters30
                  : ratio == 2.5 ? current::kPairLetters25
                                 : current::kPairLetters20) {}

    /** The letter of a bar and a space, each "n" (narrow) or "w" (wide). */
    constexpr char Of(char bar, char space) const {
        const std::size_t wideBar = bar == 'w' ? 2 : 0;
        const std::size_t wideSpace = space == 'w' ? 1 : 0;
        return letters[wideBar + wideSpace];
    }

    /** Appends a pattern of "n" and "w" (bar, space, bar, ...). A bar at its end is followed by a
     *  narrow gap. */
    void Append(std::string_view pattern, TextArea& symbol) const {
        for (std::size_t bar = 0; bar < pattern.size(); bar += 2)
            symbol.Append(Of(pattern[bar], bar + 1 < pattern.size() ? pattern[bar + 1] : 'n'));
    }

  private:
    std::string_view letters;  // narrow-narrow, narrow-wide, wide-narrow, wide-wide
};

}  // namespace linewright
