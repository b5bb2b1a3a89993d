#include "current/Ean13.h"

#include "current/Front.h"
#include "standards/CheckDigits.h"
#include "standards/EanUpcParity.h"

namespace linewright {

namespace {

constexpr std::size_t kMainLength = 12;
constexpr std::string_view kZeros = "000000000000";

constexpr FrontRule kFront{.length = AtMostOrCheckDigit(kMainLength),
                           .characters = kDigitsOnly,
                           .padTo = kMainLength,
                           .build = [](const char* text, const EncoderArguments&,
                                       TextArea& symbol) { return BuildEan13(text, symbol); }};

EanUpcNumber NumberOf(std::string_view digits) {
    if (digits.size() >= kMainLength) {
        const EanUpcNumber number = SplitNumber(digits, kMainLength);
        if (number.isKnownLength) return number;
    }
    return SplitNumber(kZeros, kMainLength);
}

/** The first digit has no bars: it chooses the number sets of the left half. */
void AppendMain(std::string_view number, TextArea& symbol) {
    const char first = number[0];
    const std::string_view left = number.substr(1, 6);
    const std::string_view right = number.substr(7);
    const std::string_view parity = kEan13Parity[static_cast<std::size_t>(first - '0')];

    symbol.Append(BesideSymbol(first));
    symbol.Append(kGuard);
    for (std::size_t place = 0; place < left.size(); ++place)
        symbol.Append(InSet(parity[place], left[place]));
    symbol.Append(kCentreGuard);
    for (const char digit : right) symbol.Append(InSet('C', digit));
    symbol.Append(InSet('C', Modulo10CheckDigit(number)));
    symbol.Append(kGuard);
}

}  // namespace

int16 BuildEan13(const char* data, TextArea& symbol) {
    if (!data || !*data) return kNoDigits;
    EanUpcDigits digits;
    CollectDigits(data, digits);
    const EanUpcNumber number = NumberOf(digits.View());

    AppendMain(number.main, symbol);
    if (!number.addOn.empty()) symbol.Append(' ');
    AppendAddOn(number.addOn, symbol);
    return kEncoded;
}

int32 EncodeEan13Current(const EncoderArguments& arguments) {
    FixedText<kEan13Capacity> symbol;
    return EncodeByRule(kFront, arguments, symbol);
}

}  // namespace linewright
