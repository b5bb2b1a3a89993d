#include "current/UpcA.h"

#include "current/Front.h"

namespace linewright {

namespace {

constexpr FrontRule kFront{.length = OneOf({11, 13, 16}, {12, 14, 17}),
                           .characters = kDigitsOnly,
                           .build = [](std::string_view text, const EncoderArguments&,
                                       TextArea& symbol) { return BuildUpcA(text, symbol); }};

}  // namespace

int16 BuildUpcA(std::string_view data, TextArea& symbol) {
    if (data.empty()) return kNoDigits;
    EanUpcDigits spare;
    const std::string_view digits = OnlyDigits(data, kMaxEanUpcDigits, spare);
    const EanUpcNumber number = SplitNumberOrZeros(digits, kUpcALength);
    AppendUpcA<kCurrentRetailAlphabet>(number.main, number.addOn, kCurrentRetailAlphabet.guard,
                                       symbol);
    return kEncoded;
}

int32 EncodeUpcACurrent(const EncoderArguments& arguments) {
    FixedText<kLongestUpcA> symbol;
    return EncodeByRule(kFront, arguments, symbol);
}

}  // namespace linewright
