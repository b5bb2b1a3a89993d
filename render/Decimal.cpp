#include "render/Decimal.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <vector>

namespace linewright {

namespace {

/** From here on there are whole numbers only. */
constexpr double kWholeNumbers = 9007199254740992;  // 2^53

/** The digits of a number that is too large to have any behind the point. */
std::string WholeNumber(double number) {
    int doublings = 0;
    auto value = static_cast<std::uint64_t>(std::ldexp(std::frexp(number, &doublings), 53));
    std::vector<std::uint8_t> digits;  // the lowest first
    for (; value > 0; value /= 10) digits.push_back(static_cast<std::uint8_t>(value % 10));
    for (doublings -= 53; doublings > 0; --doublings) {
        int carried = 0;
        for (std::uint8_t& digit : digits) {
            const int doubled = 2 * digit + carried;
            carried = doubled / 10;
            digit = static_cast<std::uint8_t>(doubled % 10);
        }
        if (carried > 0) digits.push_back(1);
    }
    std::string text;
    std::transform(digits.rbegin(), digits.rend(), std::back_inserter(text),
                   [](std::uint8_t digit) { return static_cast<char>('0' + digit); });
    return text;
}

double PowerOfTen(int exponent) {
    double power = 1;
    for (; exponent > 0; --exponent) power *= 10;
    return power;
}

}  // namespace

std::string Decimal(double number, int digits) {
    if (!std::isfinite(number)) return "no number";
    const double magnitude = std::abs(number);
    std::string decimal(number < 0 ? "-" : "");
    if (magnitude >= kWholeNumbers) return decimal.append(WholeNumber(magnitude));
    double whole = std::floor(magnitude);
    const double fraction = magnitude - whole;
    const double scale = PowerOfTen(digits);
    double parts = std::floor(fraction * scale);
    // What the product lost to rounding, std::fma still has.
    const double beyondMiddle = std::fma(fraction, scale, -(parts + 0.5));
    const bool isOdd = std::fmod(digits == 0 ? whole : parts, 2) == 1;
    if (beyondMiddle > 0 || (beyondMiddle == 0 && isOdd)) ++parts;
    if (parts >= scale) {
        parts = 0;
        ++whole;
    }
    if (whole == 0 && parts == 0) return "0";
    decimal.append(std::to_string(static_cast<std::uint64_t>(whole)));
    if (parts > 0) {
        const std::string behind = std::to_string(static_cast<std::uint64_t>(parts));
        decimal.append(1, '.').append(static_cast<std::size_t>(digits) - behind.size(), '0');
        decimal.append(behind, 0, behind.find_last_not_of('0') + 1);
    }
    return decimal;
}

}  // namespace linewright
