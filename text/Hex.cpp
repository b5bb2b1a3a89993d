#include "text/Hex.h"

namespace linewright {

namespace {

constexpr std::string_view kDigits = "0123456789abcdef";

int ValueOf(char digit) {
    if (digit >= 'A' && digit <= 'F') digit = static_cast<char>(digit - 'A' + 'a');
    const std::size_t value = kDigits.find(digit);
    return value == std::string_view::npos ? -1 : static_cast<int>(value);
}

}  // namespace

std::string ToHex(std::string_view bytes) {
    std::string digits(2 * bytes.size(), '0');
    auto digit = digits.begin();
    for (const char character : bytes) {
        const auto byte = static_cast<unsigned char>(character);
        *digit++ = kDigits[byte >> 4];
        *digit++ = kDigits[byte & 15];
    }
    return digits;
}

std::optional<std::string> FromHex(std::string_view digits) {
    if (digits.size() % 2 != 0) return std::nullopt;
    std::string bytes;
    bytes.reserve(digits.size() / 2);
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        const int high = ValueOf(digits[i]);
        const int low = ValueOf(digits[i + 1]);
        if (high < 0 || low < 0) return std::nullopt;
        bytes += static_cast<char>(16 * high + low);
    }
    return bytes;
}

}  // namespace linewright
