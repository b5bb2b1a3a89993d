#include "render/Decimal.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>

namespace linewright {

namespace {

/** From here on there are whole numbers only. */
constexpr double kWholeNumbers = 9007199254740992;  // 2^53

std::string WholeNumber(double number) {
    std::array<char, 320> text;
    std::snprintf(text.data(), text.size(), "%.0f", number);
    return text.data();
}

double PowerOfTen(int exponent) {
    double power = 1;
    for (; exponent > 0; --exponent) power *= 10;
    return power;
}

}  // namespace

std::string Decimal(double number, int digits) {
    const double magnitude = std::abs(number);
    if (!(magnitude < kWholeNumbers)) return WholeNumber(number);
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
    std::string decimal = std::to_string(static_cast<std::uint64_t>(whole));
    if (parts > 0) {
        std::string behind = std::to_string(static_cast<std::uint64_t>(parts));
        behind.insert(0, static_cast<std::size_t>(digits) - behind.size(), '0');
        behind.erase(behind.find_last_not_of('0') + 1);
        decimal += '.' + behind;
    }
    return number < 0 && decimal != "0" ? '-' + decimal : decimal;
}

}  // namespace linewright
