#include "current/UpcA.h"

#include "current/Front.h"

namespace linewright {

namespace {

constexpr const RetailAlphabet& kAlphabet = kCurrentRetailAlphabet;

constexpr FrontRule kFront{.length = OneOf({11, 13, 16}, {12, 14, 17}),
                           .characters = kDigitsOnly,
                           .build = [](const char* text, const EncoderArguments&,
                                       TextArea& symbol) { return BuildUpcA(text, symbol); }};

}  // namespace

int16 BuildUpcA(const char* data, TextArea& symbol) {
    if (!data || !*data) return kNoDigits;
    EanUpcDigits digits;
    CollectDigits(data, digits);
    const EanUpcNumber number = SplitNumberOrZeros(digits.View(), kUpcALength);
    AppendUpcA(kAlphabet, number.main, number.addOn, kAlphabet.guard, symbol);
    return kEncoded;
}

int32 EncodeUpcACurrent(const EncoderArguments& arguments) {
    FixedText<kLongestUpcA> symbol;
    return EncodeByRule(kFront, arguments, symbol);
}

}  // namespace linewright
