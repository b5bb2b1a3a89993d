#include "current/Ean13.h"

#include "current/Front.h"

namespace linewright {

namespace {

constexpr std::size_t kMainLength = 12;

constexpr FrontRule kFront{.length = AtMostOrCheckDigit(kMainLength),
                           .characters = kDigitsOnly,
                           .padTo = kMainLength,
                           .build = [](std::string_view text, const EncoderArguments&,
                                       TextArea& symbol) { return BuildEan13(text, symbol); }};

}  // namespace

int16 BuildEan13(std::string_view data, TextArea& symbol) {
    if (data.empty()) return kNoDigits;
    EanUpcDigits spare;
    const std::string_view digits = OnlyDigits(data, kMaxEanUpcDigits, spare);
    const EanUpcNumber number = SplitNumberOrZeros(digits, kMainLength);
    AppendEan13<kCurrentRetailAlphabet>(number.main, number.addOn, symbol);
    return kEncoded;
}

int32 EncodeEan13Current(const EncoderArguments& arguments) {
    FixedText<kLongestEan13> symbol;
    return EncodeByRule(kFront, arguments, symbol);
}

}  // namespace linewright
