#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

#include "classic/FontLetters.h"
#include "current/FontLetters.h"
#include "meaning/Bars.h"
#include "meaning/PlainBars.h"
#include "standards/TableChecks.h"

namespace linewright::meaning {

namespace {

constexpr std::string_view kDigits = "0123456789";

/** The letters of each digit: two pairs of bars, and a bar. */
constexpr std::array<std::array<char, 3>, 10> kPostnetLetters = [] {
    std::array<std::array<char, 3>, 10> letters{};
    for (std::size_t digit = 0; digit < letters.size(); ++digit) {
        const unsigned bars = current::PostnetBarsOf(static_cast<int>(digit));
        letters[digit] = {current::kBarPairs[bars >> 3], current::kBarPairs[bars >> 1 & 3],
                          bars & 1 ? current::kTallBar : current::kShortBar};
    }
    return letters;
}();

std::optional<char> PostnetDigit(std::string_view letters) {
    for (std::size_t digit = 0; digit < kPostnetLetters.size(); ++digit) {
        const auto& row = kPostnetLetters[digit];
        if (letters == std::string_view(row.data(), row.size())) return kDigits[digit];
    }
    return std::nullopt;
}

/** What stands between two frame bars; none where they do not. */
std::optional<std::string_view> Framed(std::string_view fontString, char frameBar) {
    if (fontString.size() < 2 || fontString.front() != frameBar || fontString.back() != frameBar) {
        return std::nullopt;
    }
    return fontString.substr(1, fontString.size() - 2);
}

}  // namespace

Bars ReadClassicPostnet(std::string_view fontString) {
    const auto digits = Framed(fontString, classic::kFrameBar);
    if (!digits || !ConsistsOf(*digits, kDigits)) return {};
    return {.symbol = Symbol::kRead, .text = std::string(*digits)};
}

Bars ReadPostnet(std::string_view fontString) {
    auto letters = Framed(fontString, current::kTallBar);
    if (!letters || letters->size() % 3 != 0) return {};
    Bars bars{.symbol = Symbol::kRead};
    for (; !letters->empty(); letters->remove_prefix(3)) {
        const auto digit = PostnetDigit(letters->substr(0, 3));
        if (!digit) return {};
        bars.text += *digit;
    }
    return bars;
}

bool PlainlySaysPostnet(std::string_view fontString, std::string_view data) {
    const auto letters = Framed(fontString, current::kTallBar);
    if (!letters || letters->size() != 3 * data.size()) return false;
    for (std::size_t place = 0; place < data.size(); ++place) {
        const auto digit = static_cast<std::size_t>(data[place] - '0');
        if (digit >= kPostnetLetters.size() ||
            !std::equal(kPostnetLetters[digit].begin(), kPostnetLetters[digit].end(),
                        letters->begin() + 3 * static_cast<std::ptrdiff_t>(place))) {
            return false;
        }
    }
    return true;
}

Bars ReadIntelligentMail(std::string_view fontString) {
    if (fontString.size() != 65 || !ConsistsOf(fontString, "ADFT")) return {};
    return {.symbol = Symbol::kRead, .text = std::string(fontString)};
}

Bars ReadDigits(std::string_view fontString) {
    return {.symbol = Symbol::kRead, .text = std::string(fontString)};
}

}  // namespace linewright::meaning
