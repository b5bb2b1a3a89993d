#include "requests/WrittenLength.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

#include "types/Dimensions.h"

namespace linewright {

namespace {

struct Unit {
    std::string_view name;
    Length length;
};

constexpr std::array kUnits{
    Unit{"", {kMillimetre}}, Unit{"mm", {kMillimetre}}, Unit{"cm", {10 * kMillimetre}},
    Unit{"in", {kInch}},     Unit{"pt", {1}},           Unit{"mil", {0.001 * kInch}},
    Unit{"x", {1, true}},
};

/** No length is longer, in points or in X-dimensions. */
constexpr double kLongest = 10000;

}  // namespace

std::optional<Length> FindLength(std::string_view text, bool isZeroAllowed) {
    double number = 0;
    const char* const last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, number);
    const std::string_view name(end, static_cast<std::size_t>(last - end));
    const auto unit = std::find_if(kUnits.begin(), kUnits.end(),
                                   [name](const Unit& row) { return row.name == name; });
    const bool isNumber = error == std::errc() && (number > 0 || (isZeroAllowed && number == 0));
    if (!isNumber || unit == kUnits.end()) return std::nullopt;
    const Length length{number * unit->length.number, unit->length.isInX};
    if (!(length.number < kLongest)) return std::nullopt;
    return length;
}

std::optional<Length> FindReduction(std::string_view text) {
    if (!text.ends_with('%')) return FindLength(text, true);
    const std::optional<Length> length =
        FindLength(std::string(text.substr(0, text.size() - 1)) + "x", true);
    if (!length) return std::nullopt;
    return Length{length->number / 100, true};
}

}  // namespace linewright
