#pragma once

#include <array>
#include <charconv>
#include <string>

namespace linewright {

/** A number with at most so many digits behind a point, whatever the locale. */
inline std::string Decimal(double number, int digits) {
    std::array<char, 400> text;
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), number,
                                            std::chars_format::fixed, digits);
    std::string decimal(text.data(), error == std::errc() ? end : text.data());
    if (decimal.find('.') != std::string::npos) {
        decimal.erase(decimal.find_last_not_of('0') + 1);
        if (decimal.back() == '.') decimal.pop_back();
    }
    return decimal == "-0" ? "0" : decimal;
}

}  // namespace linewright
