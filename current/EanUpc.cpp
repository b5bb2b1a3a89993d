#include "current/EanUpc.h"

namespace linewright {

namespace {

constexpr std::size_t AddOnLength(std::size_t digitsBehindMain) {
    switch (digitsBehindMain) {
        case 2:
        case 3: return 2;
        case 5:
        case 6: return 5;
        default: return 0;
    }
}

}  // namespace

EanUpcNumber SplitNumber(std::string_view digits, std::size_t mainLength) {
    const std::size_t behind = digits.size() - mainLength;
    const std::size_t addOnLength = AddOnLength(behind);
    return {digits.substr(0, mainLength), digits.substr(digits.size() - addOnLength),
            behind < 2 || addOnLength > 0};
}

EanUpcNumber SplitNumberOrZeros(std::string_view digits, std::size_t mainLength) {
    constexpr std::string_view kZeros = "000000000000";
    if (digits.size() >= mainLength) {
        const EanUpcNumber number = SplitNumber(digits, mainLength);
        if (number.isKnownLength) return number;
    }
    return {kZeros.substr(0, mainLength), {}, true};
}

}  // namespace linewright
