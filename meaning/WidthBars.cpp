#include <algorithm>
#include <array>
#include <optional>

#include "classic/FontLetters.h"
#include "current/FontLetters.h"
#include "meaning/Bars.h"
#include "standards/CodabarPatterns.h"
#include "standards/Code39Patterns.h"
#include "standards/Interleaved2of5Patterns.h"

// Symbologies with two widths of bars and spaces.

namespace linewright::meaning {

namespace {

Bars Read(std::string text) {
    return {.symbol = Symbol::kRead, .text = std::move(text)};
}

/** The widths that letters stand for, each a bar and a space, as "n" and "w"; none where a letter
 * is not among the four. */
std::optional<std::string> ElementsOf(std::string_view letters, std::string_view four) {
    std::string elements;
    for (const char letter : letters) {
        const std::size_t place = four.find(letter);
        if (place == std::string_view::npos) return std::nullopt;
        elements += place >= 2 ? 'w' : 'n';
        elements += place % 2 != 0 ? 'w' : 'n';
    }
    return elements;
}

/** The same of the bars font, at whichever ratio. */
std::optional<std::string> ElementsOf(std::string_view letters) {
    for (const std::string_view four :
         {current::kPairLetters20, current::kPairLetters25, current::kPairLetters30}) {
        if (auto elements = ElementsOf(letters, four)) return elements;
    }
    return std::nullopt;
}

template <typename Table>
std::optional<std::size_t> ValueOf(std::string_view pattern, const Table& table) {
    const auto row = std::find(table.begin(), table.end(), pattern);
    if (row == table.end()) return std::nullopt;
    return static_cast<std::size_t>(row - table.begin());
}

/** Characters of which each is a pattern of the table and a narrow gap behind it. */
template <typename Table>
std::optional<std::string> CharactersOf(std::string_view elements, const Table& table,
                                        std::string_view characters) {
    const std::size_t size = table[0].size();
    if (elements.size() % (size + 1) != 0) return std::nullopt;
    std::string text;
    for (; !elements.empty(); elements.remove_prefix(size + 1)) {
        const auto value = ValueOf(elements.substr(0, size), table);
        if (!value || elements[size] != 'n') return std::nullopt;
        text += characters[*value];
    }
    return text;
}

bool IsFramed(std::string_view text, std::string_view starts) {
    return text.size() >= 2 && starts.find(text.front()) != std::string_view::npos &&
           starts.find(text.back()) != std::string_view::npos;
}

std::string_view Inner(std::string_view text) {
    return text.substr(1, text.size() - 2);
}

Bars CodabarOf(std::string_view text) {
    const bool isSymbol = IsFramed(text, "ABCD") && ConsistsOf(Inner(text), kCodabarDataCharacters);
    return isSymbol ? Read(std::string(text)) : Bars{};
}

/** The elements of pairs of digits: the first one's are the bars, the second one's the spaces. */
Bars PairsOf(std::string_view elements) {
    constexpr std::size_t kSize = 10;
    if (elements.size() % kSize != 0) return {};
    std::string digits;
    for (; !elements.empty(); elements.remove_prefix(kSize)) {
        std::array<std::string, 2> patterns;
        for (std::size_t place = 0; place < kSize; ++place) patterns[place % 2] += elements[place];
        for (const std::string& pattern : patterns) {
            const auto digit = ValueOf(pattern, kInterleaved2of5Patterns);
            if (!digit) return {};
            digits += static_cast<char>('0' + *digit);
        }
    }
    return Read(std::move(digits));
}

/** What stands between start and stop; none where they do not. */
std::optional<std::string_view> Between(std::string_view text, std::string_view start,
                                        std::string_view stop) {
    if (text.size() < start.size() + stop.size() || !text.starts_with(start) ||
        !text.ends_with(stop)) {
        return std::nullopt;
    }
    return text.substr(start.size(), text.size() - start.size() - stop.size());
}

constexpr std::string_view kClassicStart(&classic::kStart, 1);
constexpr std::string_view kClassicStop(&classic::kStop, 1);

}  // namespace

Bars ReadClassicCode39(std::string_view fontString) {
    if (!IsFramed(fontString, classic::kCode39StartStops)) return {};
    std::string text(Inner(fontString));
    if (text.find(' ') != std::string::npos) return {};
    std::replace(text.begin(), text.end(), classic::kCode39Space, ' ');
    return ConsistsOf(text, kCode39Characters) ? Read(std::move(text)) : Bars{};
}

Bars ReadCode39(std::string_view fontString) {
    constexpr std::string_view kCharacters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%*";
    static_assert(kCharacters.starts_with(kCode39Characters));
    const auto elements = ElementsOf(fontString);
    const auto text =
        elements ? CharactersOf(*elements, kCode39Patterns, kCharacters) : std::nullopt;
    const bool isSymbol =
        text && IsFramed(*text, "*") && ConsistsOf(Inner(*text), kCode39Characters);
    return isSymbol ? Read(std::string(Inner(*text))) : Bars{};
}

Bars ReadClassicCodabar(std::string_view fontString) {
    return CodabarOf(fontString);
}

Bars ReadCodabar(std::string_view fontString) {
    const auto elements = ElementsOf(fontString);
    const auto text =
        elements ? CharactersOf(*elements, kCodabarPatterns, kCodabarCharacters) : std::nullopt;
    return text ? CodabarOf(*text) : Bars{};
}

Bars ReadClassicInterleaved2of5(std::string_view fontString) {
    const auto letters = Between(fontString, kClassicStart, kClassicStop);
    const auto elements = letters ? ElementsOf(*letters, classic::kPairLetters) : std::nullopt;
    return elements ? PairsOf(*elements) : Bars{};
}

Bars ReadInterleaved2of5(std::string_view fontString) {
    const auto elements = ElementsOf(fontString);
    const auto pairs = elements ? Between(*elements, "nnnn", "wnnn") : std::nullopt;
    return pairs ? PairsOf(*pairs) : Bars{};
}

Bars ReadClassicMsi(std::string_view fontString) {
    const auto digits = Between(fontString, kClassicStart, kClassicStop);
    return digits && ConsistsOf(*digits, "0123456789") ? Read(std::string(*digits)) : Bars{};
}

Bars ReadMsi(std::string_view fontString) {
    const auto elements = ElementsOf(fontString);
    const auto bits = elements ? Between(*elements, "wn", "nwnw") : std::nullopt;
    constexpr std::size_t kSize = 8;
    if (!bits || bits->size() % kSize != 0) return {};
    std::string digits;
    for (std::size_t place = 0; place < bits->size(); place += kSize) {
        int digit = 0;
        for (std::size_t bit = place; bit < place + kSize; bit += 2) {
            if (bits->at(bit) == bits->at(bit + 1)) return {};
            digit = 2 * digit + (bits->at(bit) == 'w');
        }
        if (digit > 9) return {};
        digits += static_cast<char>('0' + digit);
    }
    return Read(std::move(digits));
}

}  // namespace linewright::meaning
