#include "cli/Length.h"

#include <fmt/format.h>

#include <charconv>
#include <map>
#include <string>

#include "cli/Failure.h"
#include "text/Readable.h"
#include "types/Dimensions.h"

namespace linewright {

double LengthOf(std::string_view text, std::string_view option, double xDimension,
                bool isZeroAllowed) {
    const std::map<std::string_view, double> units{
        {"", kMillimetre},      {"mm", kMillimetre}, {"cm", 10 * kMillimetre}, {"in", kInch},
        {"mil", 0.001 * kInch}, {"pt", 1},           {"x", xDimension},
    };
    double number = 0;
    const char* const last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, number);
    const auto unit = units.find(std::string_view(end, static_cast<std::size_t>(last - end)));
    constexpr double kLongest = 10000;
    const bool isRight = error == std::errc() && unit != units.end() &&
                         (number > 0 || (isZeroAllowed && number == 0)) &&
                         number * unit->second < kLongest;
    if (isRight) return number * unit->second;
    throw Failure(fmt::format("{} \"{}\" is no length such as 0.33mm, 10mil, 12pt or 10x", option,
                              Readable(text)));
}

}  // namespace linewright
