#include "current/UpcA.h"

#include "current/Front.h"
#include "standards/CheckDigits.h"

namespace linewright {

namespace {

constexpr std::string_view kZeros = "00000000000";

constexpr FrontRule kFront{.length = OneOf({11, 13, 16}, {12, 14, 17}),
                           .characters = kDigitsOnly,
                           .build = [](const char* text, const EncoderArguments&,
                                       TextArea& symbol) { return BuildUpcA(text, symbol); }};

EanUpcNumber NumberOf(std::string_view digits) {
    if (digits.size() >= kUpcALength) {
        const EanUpcNumber number = SplitNumber(digits, kUpcALength);
        if (number.isKnownLength) return number;
    }
    return SplitNumber(kZeros, kUpcALength);
}

}  // namespace

void AppendUpcA(std::string_view number, char rightGuard, TextArea& symbol) {
    const char first = number[0];
    const char checkDigit = Modulo10CheckDigit(number);

    symbol.Append(BesideSymbol(first));
    symbol.Append(kGuard);
    symbol.Append(InLongSetA(first));
    for (const char digit : number.substr(1, 5)) symbol.Append(InSet('A', digit));
    symbol.Append(kCentreGuard);
    for (const char digit : number.substr(6)) symbol.Append(InSet('C', digit));
    symbol.Append(InLongSetC(checkDigit));
    symbol.Append(rightGuard);
    symbol.Append(BesideSymbol(checkDigit));
}

int16 BuildUpcA(const char* data, TextArea& symbol) {
    if (!data || !*data) return kNoDigits;
    EanUpcDigits digits;
    CollectDigits(data, digits);
    const EanUpcNumber number = NumberOf(digits.View());

    AppendUpcA(number.main, kGuard, symbol);
    AppendAddOn(number.addOn, symbol);
    return kEncoded;
}

int32 EncodeUpcACurrent(const EncoderArguments& arguments) {
    FixedText<kUpcACapacity> symbol;
    return EncodeByRule(kFront, arguments, symbol);
}

}  // namespace linewright
