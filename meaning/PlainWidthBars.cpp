#include <array>
#include <cstddef>
#include <cstdint>

#include "current/FontLetters.h"
#include "meaning/PlainBars.h"
#include "standards/CodabarPatterns.h"
#include "standards/Code39Patterns.h"
#include "standards/Interleaved2of5Patterns.h"

// Symbologies with two widths of bars and spaces, by tables: a letter is two bits, one of the bar
// and one of the space, and the letters of a character together are a place in a table.

namespace linewright::meaning {

namespace {

constexpr std::uint8_t kNone = 255;

using Letters = std::array<std::uint8_t, 256>;

constexpr Letters LettersOf(std::string_view four) {
    Letters letters{};
    letters.fill(kNone);
    for (std::size_t bits = 0; bits < four.size(); ++bits) {
        letters[static_cast<unsigned char>(four[bits])] = static_cast<std::uint8_t>(bits);
    }
    return letters;
}

constexpr std::array kRatios{LettersOf(current::kPairLetters20), LettersOf(current::kPairLetters25),
                             LettersOf(current::kPairLetters30)};

/** The place of elements, "n" and "w", in a table. */
constexpr std::size_t PlaceOf(std::string_view elements) {
    std::size_t place = 0;
    for (const char element : elements) place = 2 * place + (element == 'w' ? 1 : 0);
    return place;
}

/** By the elements of a pattern and the narrow gap behind it, the pattern's row. */
template <std::size_t Size, class Patterns>
constexpr auto RowsOf(const Patterns& patterns) {
    std::array<std::uint8_t, std::size_t{1} << Size> rows{};
    rows.fill(kNone);
    for (std::size_t row = 0; row < patterns.size(); ++row) {
        rows[2 * PlaceOf(patterns[row])] = static_cast<std::uint8_t>(row);
    }
    return rows;
}

constexpr auto kCode39Rows = RowsOf<10>(kCode39Patterns);
constexpr auto kCodabarRows = RowsOf<8>(kCodabarPatterns);

/** By the elements of two digits, bars and spaces in turns, the number that they are. */
constexpr auto kDigitPairs = [] {
    std::array<std::uint8_t, 1024> pairs{};
    pairs.fill(kNone);
    for (std::size_t pair = 0; pair < 100; ++pair) {
        std::size_t place = 0;
        for (std::size_t element = 0; element < 5; ++element) {
            place = 2 * place + (kInterleaved2of5Patterns[pair / 10][element] == 'w' ? 1 : 0);
            place = 2 * place + (kInterleaved2of5Patterns[pair % 10][element] == 'w' ? 1 : 0);
        }
        pairs[place] = static_cast<std::uint8_t>(pair);
    }
    return pairs;
}();

/** Takes letters of one ratio from left to right. */
class Elements {
  public:
    Elements(std::string_view fontString, const Letters& ratio)
        : rest(fontString), letters(ratio) {}

    /** The elements of so many letters, as a place; a wrong letter makes it larger than a table. */
    std::size_t Take(std::size_t count) {
        if (rest.size() < count) return std::size_t{1} << 16;
        std::size_t place = 0;
        for (std::size_t i = 0; i < count; ++i) {
            const std::size_t bits = letters[static_cast<unsigned char>(rest[i])];
            place = bits == kNone ? std::size_t{1} << 16 : place << 2 | bits;
        }
        rest.remove_prefix(count);
        return place;
    }
    template <class Table>
    std::size_t Take(std::size_t count, const Table& table) {
        const std::size_t place = Take(count);
        return place < table.size() ? table[place] : kNone;
    }

    bool IsAtEnd() const { return rest.empty(); }

  private:
    std::string_view rest;
    const Letters& letters;
};

/** Whether `says` holds of the elements at one of the ratios. */
template <class Says>
bool AtAnyRatio(std::string_view fontString, Says says) {
    for (const Letters& ratio : kRatios) {
        if (says(Elements(fontString, ratio))) return true;
    }
    return false;
}

std::size_t RowOf(char character, std::string_view characters) {
    return characters.find(character);
}

}  // namespace

bool PlainlySaysCode39(std::string_view fontString, std::string_view data) {
    constexpr std::size_t kSize = 5;
    if (fontString.size() != kSize * (data.size() + 2)) return false;
    return AtAnyRatio(fontString, [data](Elements elements) {
        if (elements.Take(kSize, kCode39Rows) != kCode39StartStop) return false;
        for (const char character : data) {
            const std::size_t row = elements.Take(kSize, kCode39Rows);
            if (row >= kCode39Characters.size() || kCode39Characters[row] != character) {
                return false;
            }
        }
        return elements.Take(kSize, kCode39Rows) == kCode39StartStop;
    });
}

bool PlainlySaysCodabar(std::string_view fontString, std::string_view data) {
    constexpr std::size_t kSize = 4;
    if (fontString.size() != kSize * (data.size() + 2)) return false;
    return AtAnyRatio(fontString, [data](Elements elements) {
        if (elements.Take(kSize, kCodabarRows) != RowOf('A', kCodabarCharacters)) return false;
        for (const char character : data) {
            const std::size_t row = elements.Take(kSize, kCodabarRows);
            if (row >= kCodabarDataCharacters.size() || kCodabarDataCharacters[row] != character) {
                return false;
            }
        }
        return elements.Take(kSize, kCodabarRows) == RowOf('B', kCodabarCharacters);
    });
}

bool PlainlySaysInterleaved2of5(std::string_view fontString, std::string_view data) {
    constexpr std::size_t kSize = 5;
    if (data.size() % 2 != 0 || fontString.size() != kSize * (data.size() / 2) + 4) return false;
    return AtAnyRatio(fontString, [data](Elements elements) {
        if (elements.Take(2) != PlaceOf("nnnn")) return false;
        for (std::size_t place = 0; place < data.size(); place += 2) {
            const std::size_t pair = elements.Take(kSize, kDigitPairs);
            if (pair == kNone || data[place] != static_cast<char>('0' + pair / 10) ||
                data[place + 1] != static_cast<char>('0' + pair % 10)) {
                return false;
            }
        }
        return elements.Take(2) == PlaceOf("wnnn");
    });
}

bool PlainlySaysMsi(std::string_view fontString, std::string_view data) {
    constexpr std::size_t kSize = 4;
    if (fontString.size() != kSize * data.size() + 3) return false;
    return AtAnyRatio(fontString, [data](Elements elements) {
        if (elements.Take(1) != PlaceOf("wn")) return false;
        for (const char character : data) {
            // A bit of the digit is a wide bar and a narrow space, or the other way round.
            const auto digit = static_cast<unsigned>(character - '0');
            std::size_t place = 0;
            for (unsigned bit = 8; bit > 0; bit /= 2) {
                place = place << 2 | ((digit & bit) != 0 ? 0b10U : 0b01U);
            }
            if (digit > 9 || elements.Take(kSize) != place) return false;
        }
        return elements.Take(2) == PlaceOf("nwnw");
    });
}

}  // namespace linewright::meaning
