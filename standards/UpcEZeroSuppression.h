#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

#include "core/Word.h"
#include "standards/CheckDigits.h"

namespace linewright {

/** ISO/IEC 15420:2009, UPC-E: the ten digits (manufacturer and product) behind the number system
 *  digit that six UPC-E digits stand for, by the sixth of them. "1" to "6" is the digit in that
 *  place of the six, "0" a suppressed zero. */
inline constexpr std::array<std::string_view, 10> kUpcEExpansion{
    // 0
    "1260000345", "1260000345", "1260000345", "1230000045", "1234000005",
    "1234500006", "1234500006", "1234500006", "1234500006", "1234500006",
};

/** The ten manufacturer and product digits of a UPC-E number. `digits`: exactly six digits. */
constexpr std::array<char, 10> ExpandUpcE(std::string_view digits) {
    std::array<char, 10> expanded{};
    const std::string_view places = kUpcEExpansion[static_cast<std::size_t>(digits[5] - '0')];
    for (std::size_t index = 0; index < expanded.size(); ++index) {
        const char place = places[index];
        expanded[index] = place == '0' ? '0' : digits[static_cast<std::size_t>(place - '1')];
    }
    return expanded;
}

constexpr bool UpcEExpandsTo(std::string_view digits, std::string_view expected) {
    const std::array<char, 10> expanded = ExpandUpcE(digits);
    return std::string_view(expanded.data(), expanded.size()) == expected;
}

/** The last of the six digits that stand for these ten, by the zeros among the ten; none when zeros
 *  cannot be suppressed. Where several would do, the standard has the lowest. */
constexpr std::optional<char> UpcELastDigit(std::string_view ten) {
    const auto hasZeros = [&](std::size_t from, std::size_t to) {
        return ten.substr(from, to - from) == std::string_view("00000").substr(0, to - from);
    };
    if (ten[2] <= '2' && hasZeros(3, 7)) return ten[2];
    if (hasZeros(3, 8)) return '3';
    if (hasZeros(4, 9)) return '4';
    if (ten[9] >= '5' && hasZeros(5, 9)) return ten[9];
    return std::nullopt;
}

/** The six digits that stand for these ten manufacturer and product digits; none when zeros cannot
 *  be suppressed. */
constexpr std::optional<std::array<char, 6>> SuppressUpcE(std::string_view ten) {
    const std::optional<char> last = UpcELastDigit(ten);
    if (!last) return std::nullopt;
    std::array<char, 6> six{};
    const std::string_view places = kUpcEExpansion[static_cast<std::size_t>(*last - '0')];
    for (std::size_t index = 0; index < places.size(); ++index)
        if (places[index] != '0') six[static_cast<std::size_t>(places[index] - '1')] = ten[index];
    six[5] = *last;
    return six;
}

/** By the last of six digits, the place of one of them and the least that it must be, lest a lower
 *  last digit stands for the same ten. */
inline constexpr std::array<std::pair<std::size_t, char>, 10> kUpcELeastDigits{{
    // 0
    {0, '0'},
    {0, '0'},
    {0, '0'},
    {2, '3'},
    {3, '1'},
    {4, '1'},
    {4, '1'},
    {4, '1'},
    {4, '1'},
    {4, '1'},
}};

/** Whether six digits are those that stand for their own ten, so that to expand and to suppress
 * them changes nothing. */
constexpr bool IsSuppressedUpcE(std::string_view six) {
    const auto& [place, least] = kUpcELeastDigits[static_cast<std::size_t>(six[5] - '0')];
    return six[place] >= least;
}

/** The places of the six digits, by the last of them, that weigh 3 in the check digit of the number
 *  they stand for, and those that weigh anything: a byte of ones each. */
struct UpcEWeights {
    Word three = 0;
    Word any = 0;
};
inline constexpr auto kUpcEWeights = [] {
    std::array<UpcEWeights, kUpcEExpansion.size()> weights{};
    for (std::size_t last = 0; last < weights.size(); ++last) {
        for (std::size_t index = 0; index < kUpcEExpansion[last].size(); ++index) {
            const char place = kUpcEExpansion[last][index];
            if (place == '0') continue;
            const Word byte = Word{0xFF} << 8 * (place - '1');
            weights[last].any |= byte;
            if (index % 2 == 1) weights[last].three |= byte;
        }
    }
    return weights;
}();

/** The check digit of the number that six digits stand for, without expanding them. */
inline char UpcECheckDigit(char numberSystem, std::string_view six) {
    const Word values = DigitValues(LoadWord<6>(six.data()));
    const UpcEWeights& weights = kUpcEWeights[static_cast<std::size_t>(six[5] - '0')];
    const Word weighted = (values & weights.any) + 2 * (values & weights.three);
    return Modulo10Complement(static_cast<std::size_t>(numberSystem - '0') * 3 +
                              WeightedSum(weighted, 1, 1));
}

// Worked out by hand from the rule of zero suppression, one for each case.
static_assert(UpcEExpandsTo("987650", "9800000765"));
static_assert(UpcEExpandsTo("425261", "4210000526"));
static_assert(UpcEExpandsTo("987652", "9820000765"));
static_assert(UpcEExpandsTo("987653", "9870000065"));
static_assert(UpcEExpandsTo("987654", "9876000005"));
static_assert(UpcEExpandsTo("123456", "1234500006"));
static_assert(UpcEExpandsTo("987659", "9876500009"));
static_assert(SuppressUpcE("4210000526") == std::array{'4', '2', '5', '2', '6', '1'});
static_assert(!SuppressUpcE("1234567890"));
// 4200000526 is 425260, not 420263 nor 420064.
static_assert(IsSuppressedUpcE("425260") && !IsSuppressedUpcE("420263"));

}  // namespace linewright
