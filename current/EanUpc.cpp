#include "current/EanUpc.h"

#include "core/CharClasses.h"
#include "standards/CheckDigits.h"
#include "standards/EanUpcParity.h"

namespace linewright {

namespace {

constexpr char kAddOnStart = '+';
constexpr char kDelineator = '!';
constexpr std::string_view kAddOnSetA = "\"#$%&,./:;";
constexpr std::string_view kAddOnSetB = "z=?@[\\]_{}";
static_assert(kAddOnSetA.size() == 10 && kAddOnSetB.size() == 10);

std::size_t ValueOf(char digit) {
    return static_cast<std::size_t>(digit - '0');
}

std::string_view ParityOf(std::string_view addOn) {
    if (addOn.size() == 5) return kAddOn5Parity[AddOn5CheckValue(addOn)];
    return kAddOn2Parity[(10 * ValueOf(addOn[0]) + ValueOf(addOn[1])) % 4];
}

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

void CollectDigits(std::string_view text, EanUpcDigits& digits) {
    for (const char character : text)
        if (IsDigit(character) && digits.View().size() < kMaxEanUpcDigits) digits.Append(character);
}

EanUpcNumber SplitNumber(std::string_view digits, std::size_t mainLength) {
    const std::size_t behind = digits.size() - mainLength;
    const std::size_t addOnLength = AddOnLength(behind);
    return {digits.substr(0, mainLength), digits.substr(digits.size() - addOnLength),
            behind < 2 || addOnLength > 0};
}

void AppendAddOn(std::string_view addOn, TextArea& symbol) {
    if (addOn.empty()) return;
    const std::string_view parity = ParityOf(addOn);
    for (std::size_t place = 0; place < addOn.size(); ++place) {
        symbol.Append(place == 0 ? kAddOnStart : kDelineator);
        const std::string_view set = parity[place] == 'A' ? kAddOnSetA : kAddOnSetB;
        symbol.Append(set[ValueOf(addOn[place])]);
    }
}

}  // namespace linewright
