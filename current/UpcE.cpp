#include "current/UpcE.h"

#include <algorithm>

#include "current/BuilderText.h"
#include "current/Front.h"
#include "standards/UpcEZeroSuppression.h"

namespace linewright {

namespace {

constexpr const RetailAlphabet& kAlphabet = kCurrentRetailAlphabet;

constexpr std::size_t kMaxText = 20;

constexpr FrontRule kFront{.length = OneOf({7, 11}, {8, 12}),
                           .characters = kDigitsOnly,
                           .build = [](std::string_view text, const EncoderArguments&,
                                       TextArea& symbol) { return BuildUpcE(text, symbol); }};

/** What the six digits behind a number system stand for, as a number of UPC-A. */
std::string_view ExpandNumber(std::string_view digits, EanUpcDigits& expanded) {
    const bool hasNumberSystem = digits.size() > 6;
    const auto ten = ExpandUpcE(digits.substr(hasNumberSystem ? 1 : 0, 6));
    expanded.Clear();
    expanded.Append(hasNumberSystem ? digits[0] : '0');
    expanded.Append({ten.data(), ten.size()});
    return expanded.View();
}

/** Any number system but 0 is printed as 1; the number sets of 1 are only those of 1 itself. */
void AppendSix(char numberSystem, std::string_view six, std::string_view addOn, TextArea& symbol) {
    AppendUpcE<kAlphabet>({.numberSystem = numberSystem == '0' ? '0' : '1',
                           .six = six,
                           .parityOf = numberSystem,
                           .checkDigit = UpcECheckDigit(numberSystem, six)},
                          addOn, symbol);
}

}  // namespace

int16 BuildUpcE(std::string_view data, TextArea& symbol) {
    if (data.empty()) return kNoDigits;
    EanUpcDigits spare;
    std::string_view digits = OnlyDigits(FirstCharacters(data, kMaxText), kMaxEanUpcDigits, spare);
    const bool hasNumberSystem = digits.size() == 7 || digits.size() == 8;
    if (hasNumberSystem && IsSuppressedUpcE(digits.substr(1, 6))) {
        AppendSix(digits[0], digits.substr(1, 6), {}, symbol);
        return kEncoded;
    }
    EanUpcDigits expanded;
    if (digits.size() >= 6 && digits.size() <= 8) digits = ExpandNumber(digits, expanded);
    if (digits.size() < kUpcALength) return kEncoded;

    const EanUpcNumber number = SplitNumber(digits, kUpcALength);
    if (!number.isKnownLength && digits.size() != 18) return kEncoded;
    if (const auto six = SuppressUpcE(number.main.substr(1))) {
        AppendSix(number.main[0], {six->data(), six->size()}, number.addOn, symbol);
    } else {
        AppendUpcA<kAlphabet>(number.main, number.addOn, kAlphabet.upcERightGuard, symbol);
    }
    return kEncoded;
}

int32 EncodeUpcECurrent(const EncoderArguments& arguments) {
    // A number that no zeros can be left out of is written as long as UPC-A.
    FixedText<std::max(kLongestUpcA, kLongestUpcE)> symbol;
    return EncodeByRule(kFront, arguments, symbol);
}

}  // namespace linewright
