#include "current/Ean8.h"

#include "current/Front.h"

namespace linewright {

namespace {

constexpr std::size_t kMainLength = 7;
constexpr std::string_view kTooFewDigits = "0005000";

constexpr FrontRule kFront{.length = AtMostOrCheckDigit(kMainLength),
                           .characters = kDigitsOnly,
                           .padTo = kMainLength,
                           .build = [](std::string_view text, const EncoderArguments&,
                                       TextArea& symbol) { return BuildEan8(text, symbol); }};

}  // namespace

int16 BuildEan8(std::string_view data, TextArea& symbol) {
    if (data.empty()) return kNoDigits;
    EanUpcDigits spare;
    const std::string_view digits = OnlyDigits(data, kMaxEanUpcDigits, spare);
    const bool isComplete = digits.size() >= kMainLength;
    const std::string_view number = isComplete ? digits.substr(0, kMainLength) : kTooFewDigits;

    AppendEan8<kCurrentRetailAlphabet>(number, symbol);
    return kEncoded;
}

int32 EncodeEan8(const EncoderArguments& arguments) {
    FixedText<kLongestEan8> symbol;
    return EncodeByRule(kFront, arguments, symbol);
}

}  // namespace linewright
