#include "meaning/CheckRules.h"

#include <algorithm>
#include <initializer_list>

namespace linewright::verify {

namespace {

std::string Joined(std::initializer_list<std::string_view> pieces) {
    std::string text;
    for (const std::string_view piece : pieces) text += piece;
    return text;
}

}  // namespace

char Modulo10(std::string_view digits) {
    int sum = 0;
    for (std::size_t fromRight = 0; fromRight < digits.size(); ++fromRight) {
        sum += (digits[digits.size() - 1 - fromRight] - '0') * (fromRight % 2 == 0 ? 3 : 1);
    }
    return static_cast<char>('0' + (10 - sum % 10) % 10);
}

char Modulo43(std::string_view text) {
    constexpr std::string_view kCharacters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%";
    std::size_t sum = 0;
    for (const char character : text) {
        const std::size_t value = kCharacters.find(character);
        sum += value == std::string_view::npos ? 0 : value;
    }
    return kCharacters[sum % kCharacters.size()];
}

std::string ExpandedUpcE(std::string_view sevenDigits) {
    const std::string_view start = sevenDigits.substr(0, 3);  // number system and two digits
    const std::string_view middle = sevenDigits.substr(3, 3);
    const std::string_view last = sevenDigits.substr(6, 1);
    if (last <= "2") return Joined({start, last, "0000", middle});
    if (last == "3") return Joined({start, middle.substr(0, 1), "00000", middle.substr(1)});
    if (last == "4") return Joined({start, middle.substr(0, 2), "00000", middle.substr(2)});
    return Joined({start, middle, "0000", last});
}

std::optional<std::string> SuppressedUpcE(std::string_view number) {
    // Each form takes some digits from the manufacturer's part and the others from the product's.
    const std::string candidates[]{
        Joined({number.substr(0, 6), number.substr(10)}),
        Joined({number.substr(0, 5), number.substr(10), "4"}),
        Joined({number.substr(0, 4), number.substr(9), "3"}),
        Joined({number.substr(0, 3), number.substr(8), number.substr(3, 1)}),
    };
    const auto names = [&](const std::string& upcE) { return ExpandedUpcE(upcE) == number; };
    const auto found = std::find_if(std::begin(candidates), std::end(candidates), names);
    if (found == std::end(candidates)) return std::nullopt;
    return *found;
}

}  // namespace linewright::verify
