#include "current/UpcE.h"

#include <algorithm>

#include "current/BuilderText.h"
#include "current/Front.h"
#include "standards/CheckDigits.h"
#include "standards/EanUpcParity.h"
#include "standards/UpcEZeroSuppression.h"

namespace linewright {

namespace {

constexpr const RetailAlphabet& kAlphabet = kCurrentRetailAlphabet;

constexpr std::size_t kMaxText = 20;

constexpr FrontRule kFront{.length = OneOf({7, 11}, {8, 12}),
                           .characters = kDigitsOnly,
                           .build = [](const char* text, const EncoderArguments&,
                                       TextArea& symbol) { return BuildUpcE(text, symbol); }};

/** Replaces a UPC-E number, with number system and check digit or without, by its UPC-A number. */
void ExpandNumber(EanUpcDigits& digits) {
    const bool hasNumberSystem = digits.View().size() > 6;
    const char numberSystem = hasNumberSystem ? digits.View()[0] : '0';
    const auto expanded = ExpandUpcE(digits.View().substr(hasNumberSystem ? 1 : 0, 6));
    digits.Clear();
    digits.Append(numberSystem);
    digits.Append({expanded.data(), expanded.size()});
}

/** Any number system but 0 is printed as 1; the number sets of 1 are only those of 1 itself. */
void AppendSuppressed(const EanUpcNumber& number, std::string_view six, TextArea& symbol) {
    const char numberSystem = number.main[0];
    const char checkDigit = Modulo10CheckDigit(number.main);
    const auto numberSets = UpcENumberSets(numberSystem, checkDigit);
    AppendUpcE(kAlphabet,
               {.numberSystem = numberSystem == '0' ? '0' : '1',
                .six = six,
                .numberSets = {numberSets.data(), numberSets.size()},
                .checkDigit = checkDigit},
               number.addOn, symbol);
}

}  // namespace

int16 BuildUpcE(const char* data, TextArea& symbol) {
    if (!data || !*data) return kNoDigits;
    EanUpcDigits digits;
    CollectDigits(FirstCharacters(data, kMaxText), digits);
    if (digits.View().size() >= 6 && digits.View().size() <= 8) ExpandNumber(digits);
    if (digits.View().size() < kUpcALength) return kEncoded;

    const EanUpcNumber number = SplitNumber(digits.View(), kUpcALength);
    if (!number.isKnownLength && digits.View().size() != 18) return kEncoded;
    if (const auto six = SuppressUpcE(number.main.substr(1))) {
        AppendSuppressed(number, {six->data(), six->size()}, symbol);
    } else {
        AppendUpcA(kAlphabet, number.main, number.addOn, kAlphabet.upcERightGuard, symbol);
    }
    return kEncoded;
}

int32 EncodeUpcECurrent(const EncoderArguments& arguments) {
    // A number that no zeros can be left out of is written as long as UPC-A.
    FixedText<std::max(kLongestUpcA, kLongestUpcE)> symbol;
    return EncodeByRule(kFront, arguments, symbol);
}

}  // namespace linewright
