#include "cli/Length.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <string>

#include "merge/Failure.h"
#include "text/Readable.h"
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

[[noreturn]] void Refuse(std::string_view text, std::string_view option) {
    throw Failure(fmt::format("{} \"{}\" is no length such as 0.33mm, 10mil, 12pt or 10x", option,
                              Readable(text)));
}

}  // namespace

Length LengthOf(std::string_view text, std::string_view option, bool isZeroAllowed) {
    const std::optional<Length> length = FindLength(text, isZeroAllowed);
    if (!length) Refuse(text, option);
    return *length;
}

double XDimensionOf(std::string_view text, std::string_view option) {
    const Length length = LengthOf(text, option);
    if (length.isInX) Refuse(text, option);
    return length.number;
}

Length ReductionOf(std::string_view text, std::string_view option) {
    if (!text.ends_with('%')) return LengthOf(text, option, true);
    const std::optional<Length> length =
        FindLength(std::string(text.substr(0, text.size() - 1)) + "x", true);
    if (!length) Refuse(text, option);
    return {length->number / 100, true};
}

}  // namespace linewright
