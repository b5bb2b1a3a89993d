#include "meaning/ArticleNumber.h"

#include <algorithm>

#include "meaning/Intent.h"
#include "meaning/PlugInConversion.h"
#include "standards/CheckDigits.h"
#include "standards/UpcEZeroSuppression.h"
#include "text/Utf8.h"

namespace linewright {

namespace {

using meaning::AreDigits;

constexpr std::size_t kGtin14 = 14;

enum class Kind { kGtin, kUpcE, kIsbn10, kIssn };

/** A number as it was written, without what parts its digits. */
struct WrittenNumber {
    Kind kind;
    /** With the check digit, which may be "X" for ISBN-10 and ISSN. */
    std::string digits;

    std::string_view WithoutCheck() const {
        return std::string_view(digits).substr(0, digits.size() - 1);
    }
};

bool IsSeparator(char character) {
    return character == '-' || character == ' ';
}

/** The digits, and X where it is the last of them; "" where anything else is there. */
std::string DigitsOf(std::string_view written) {
    std::string digits;
    bool isBehindDigit = false;
    for (const char character : written) {
        if (IsSeparator(character)) {
            if (!isBehindDigit) return "";
        } else {
            digits += character == 'x' ? 'X' : character;
        }
        isBehindDigit = !IsSeparator(character);
    }
    const bool areDigits = digits.size() > 1 && isBehindDigit &&
                           AreDigits(digits.substr(0, digits.size() - 1)) &&
                           (AreDigits(digits.substr(digits.size() - 1)) || digits.back() == 'X');
    return areDigits ? digits : "";
}

std::optional<Kind> KindOf(std::string_view digits, std::string_view written, TypeCode type) {
    constexpr std::size_t kHyphenOfIssn = 4;
    const bool endsWithX = digits.ends_with('X');
    switch (digits.size()) {
        case 8:
            if (endsWithX || (written.size() == 9 && written[kHyphenOfIssn] == '-')) {
                return Kind::kIssn;
            }
            return type == TypeCode::kUpcE || type == TypeCode::kClassicUpcE ? Kind::kUpcE
                                                                             : Kind::kGtin;
        case 10: return Kind::kIsbn10;
        case 12:
        case 13:
        case kGtin14:
            if (endsWithX) return std::nullopt;
            return Kind::kGtin;
        default: return std::nullopt;
    }
}

/** ISO 2108 and ISO 3297: the rightmost digit weighs 2, the next one 3, and so on. */
char Modulo11CheckDigit(std::string_view digits) {
    std::size_t sum = 0;
    for (std::size_t place = 0; place < digits.size(); ++place) {
        sum += static_cast<std::size_t>(digits[digits.size() - 1 - place] - '0') * (place + 2);
    }
    const std::size_t check = (11 - sum % 11) % 11;
    return check == 10 ? 'X' : static_cast<char>('0' + check);
}

/** The UPC-A number without its check digit that UPC-E stands for. */
std::string ElevenDigitsOf(std::string_view upcE) {
    const auto ten = ExpandUpcE(upcE.substr(1, 6));
    return upcE.front() + std::string(ten.begin(), ten.end());
}

char CheckDigitOf(const WrittenNumber& number) {
    switch (number.kind) {
        case Kind::kIsbn10:
        case Kind::kIssn: return Modulo11CheckDigit(number.WithoutCheck());
        case Kind::kUpcE: return Modulo10CheckDigit(ElevenDigitsOf(number.digits));
        case Kind::kGtin: break;
    }
    return Modulo10CheckDigit(number.WithoutCheck());
}

std::string NameOf(const WrittenNumber& number) {
    switch (number.kind) {
        case Kind::kIsbn10: return "ISBN-10";
        case Kind::kIssn: return "ISSN";
        case Kind::kUpcE: return "UPC-E";
        case Kind::kGtin: break;
    }
    return "GTIN-" + std::to_string(number.digits.size());
}

std::string WithCheckDigit(std::string digits) {
    digits += Modulo10CheckDigit(digits);
    return digits;
}

/** The number as a GTIN in 14 digits. An ISSN of which nothing else is known has the variant 00. */
std::string Gtin14Of(const WrittenNumber& number) {
    std::string gtin;
    switch (number.kind) {
        case Kind::kIsbn10:
            gtin = WithCheckDigit("978" + std::string(number.WithoutCheck()));
            break;
        case Kind::kIssn:
            gtin = WithCheckDigit("977" + std::string(number.WithoutCheck()) + "00");
            break;
        case Kind::kUpcE: gtin = WithCheckDigit(ElevenDigitsOf(number.digits)); break;
        case Kind::kGtin: gtin = number.digits; break;
    }
    return gtin.insert(0, kGtin14 - gtin.size(), '0');
}

bool HasZeros(std::string_view gtin, std::size_t count) {
    return gtin.substr(0, count) == std::string_view("000000").substr(0, count);
}

/** The eight digits of UPC-E that stand for a GTIN; "" where there are none. */
std::string UpcEOf(std::string_view gtin) {
    const auto six = SuppressUpcE(gtin.substr(3, 10));
    if (!HasZeros(gtin, 2) || gtin[2] > '1' || !six) return "";
    std::string upcE(1, gtin[2]);
    return upcE.append(six->begin(), six->end()) + gtin.back();
}

/** The form of a GTIN in 14 digits for a type; "" where it has none, none at all for a type of
 * other data. With six zeros in front it is a GTIN-8, which only EAN-8 has among EAN and UPC. */
std::optional<std::string> FormOf(std::string_view gtin, const BarcodeType& type) {
    constexpr std::size_t kZerosOfGtin8 = 6;
    const bool isGtin8 = HasZeros(gtin, kZerosOfGtin8);
    const auto last = [gtin](std::size_t count, bool isOfType) {
        return std::string(isOfType ? gtin.substr(kGtin14 - count) : "");
    };
    switch (type.code) {
        case TypeCode::kEan13:
        case TypeCode::kJan13:
        case TypeCode::kClassicEan13:
        case TypeCode::kClassicJan13: return last(13, HasZeros(gtin, 1) && !isGtin8);
        case TypeCode::kUpcA:
        case TypeCode::kClassicUpcA: return last(12, HasZeros(gtin, 2) && !isGtin8);
        case TypeCode::kEan8: return last(8, isGtin8);
        case TypeCode::kUpcE:
        case TypeCode::kClassicUpcE: return UpcEOf(gtin);
        case TypeCode::kInterleaved2of5:
        case TypeCode::kInterleaved2of5Text: return std::string(gtin);
        case TypeCode::kCode128: return "(01)" + std::string(gtin);
        default: return std::nullopt;
    }
}

ArticleNumber Refused(NumberReason reason, std::vector<std::string> parameters) {
    return {.finding = NumberFinding{reason, std::move(parameters)}};
}

}  // namespace

ArticleNumber BringToForm(const BarcodeType& type, std::string_view data) {
    const std::string_view written = TrimLikePlugIn(data);
    const std::string shown(written);
    WrittenNumber number{Kind::kGtin, DigitsOf(written)};
    const auto kind = KindOf(number.digits, written, type.code);
    if (!FormOf(std::string(kGtin14, '0'), type)) {
        return Refused(NumberReason::kNoArticleType, {std::string(type.shortName)});
    }
    if (!kind) return Refused(NumberReason::kNoNumber, {shown});
    number.kind = *kind;
    const char computed = CheckDigitOf(number);
    if (number.digits.back() != computed) {
        return Refused(NumberReason::kWrongCheckDigit,
                       {NameOf(number), shown, {number.digits.back()}, {computed}});
    }
    std::string form = *FormOf(Gtin14Of(number), type);
    if (form.empty()) {
        return Refused(NumberReason::kNoForm, {NameOf(number), shown, std::string(type.shortName)});
    }
    // The classic types of EAN and UPC take numbers without their check digit.
    if (type.symbology == Symbology::kEanUpc && type.family == Family::kClassic) form.pop_back();
    if (form == data) return {.data = std::move(form)};
    NumberFinding finding{NumberReason::kBrought, {NameOf(number), shown, form}};
    return {.data = std::move(form), .finding = std::move(finding)};
}

}  // namespace linewright
