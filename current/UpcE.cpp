#include "current/UpcE.h"

#include <array>
#include <optional>

#include "current/BuilderText.h"
#include "current/Front.h"
#include "standards/CheckDigits.h"
#include "standards/EanUpcParity.h"
#include "standards/UpcEZeroSuppression.h"

namespace linewright {

namespace {

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

using SixDigits = std::array<char, 6>;

/** What `six` must be, its last digit given, if the manufacturer and product digits are its
 *  expansion. */
SixDigits ReadBack(std::string_view expanded, char last) {
    SixDigits six{};
    const std::string_view places = kUpcEExpansion[static_cast<std::size_t>(last - '0')];
    for (std::size_t index = 0; index < places.size(); ++index)
        if (places[index] != '0')
            six[static_cast<std::size_t>(places[index] - '1')] = expanded[index];
    six[5] = last;
    return six;
}

/** The first six digits, by the last of them, that expand to these manufacturer and product digits;
 *  none when zeros cannot be suppressed. */
std::optional<SixDigits> SuppressZeros(std::string_view expanded) {
    for (char last = '0'; last <= '9'; ++last) {
        const SixDigits six = ReadBack(expanded, last);
        if (UpcEExpandsTo({six.data(), six.size()}, expanded)) return six;
    }
    return std::nullopt;
}

void AppendSuppressed(char numberSystem, const SixDigits& six, char checkDigit, TextArea& symbol) {
    const std::string_view parity = kUpcEParity[static_cast<std::size_t>(checkDigit - '0')];
    symbol.Append(BesideSymbol(numberSystem == '0' ? '0' : '1'));
    symbol.Append(kGuard);
    for (std::size_t place = 0; place < six.size(); ++place) {
        const char set = numberSystem == '1' ? OppositeNumberSet(parity[place]) : parity[place];
        symbol.Append(InSet(set, six[place]));
    }
    symbol.Append(kSpecialGuard);
    symbol.Append(BesideSymbol(checkDigit));
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
    if (const auto six = SuppressZeros(number.main.substr(1))) {
        AppendSuppressed(number.main[0], *six, Modulo10CheckDigit(number.main), symbol);
    } else {
        AppendUpcA(number.main, kSpecialGuard, symbol);
    }
    AppendAddOn(number.addOn, symbol);
    return kEncoded;
}

int32 EncodeUpcECurrent(const EncoderArguments& arguments) {
    FixedText<kUpcECapacity> symbol;
    return EncodeByRule(kFront, arguments, symbol);
}

}  // namespace linewright
