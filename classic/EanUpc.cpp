#include "classic/EanUpc.h"

#include <algorithm>
#include <array>

#include "core/CharClasses.h"
#include "core/FixedText.h"
#include "core/Status.h"
#include "standards/CheckDigits.h"
#include "standards/EanUpcParity.h"
#include "standards/UpcEZeroSuppression.h"

namespace linewright {

namespace {

constexpr char kNormalGuard = '<';
constexpr char kCentreGuard = '=';
constexpr char kUpcERightGuard = '>';
constexpr char kAddOnStart = '+';
constexpr char kAddOnDelineator = '-';

constexpr char Shifted(char digit, int distance) {
    return static_cast<char>(digit + distance);
}

// The font's places for a digit.

constexpr char OutsideBars(char digit) {
    return Shifted(digit, 69);
}
constexpr char InLeftHalf(char digit, char numberSet) {
    return Shifted(digit, numberSet == 'A' ? -15 : 59);
}
constexpr char InRightHalf(char digit) {
    return Shifted(digit, 49);
}
/** UPC-A's check digit with long bars; the first digit with long bars is the digit itself. */
constexpr char LongCheckDigit(char digit) {
    return Shifted(digit, 17);
}
constexpr char InAddOn(char digit, char numberSet) {
    return Shifted(digit, numberSet == 'A' ? 37 : 80);
}

constexpr std::size_t Value(char digit) {
    return static_cast<std::size_t>(digit - '0');
}

void AppendLeftHalf(std::string_view digits, std::string_view numberSets, TextArea& out) {
    for (std::size_t place = 0; place < digits.size(); ++place)
        out.Append(InLeftHalf(digits[place], numberSets[place]));
}

void AppendRightHalf(std::string_view digits, TextArea& out) {
    for (const char digit : digits) out.Append(InRightHalf(digit));
}

constexpr std::size_t kEan13Size = 16;

void AppendEan13(std::string_view digits, TextArea& out) {
    out.Append(OutsideBars(digits[0]));
    out.Append(kNormalGuard);
    AppendLeftHalf(digits.substr(1, 6), kEan13Parity[Value(digits[0])], out);
    out.Append(kCentreGuard);
    AppendRightHalf(digits.substr(7), out);
    out.Append(InRightHalf(Modulo10CheckDigit(digits)));
    out.Append(kNormalGuard);
}

constexpr std::size_t kUpcASize = 17;

void AppendUpcA(std::string_view digits, TextArea& out) {
    const char check = Modulo10CheckDigit(digits);
    out.Append(OutsideBars(digits[0]));
    out.Append(kNormalGuard);
    out.Append(digits[0]);
    AppendLeftHalf(digits.substr(1, 5), kEan13Parity[0], out);
    out.Append(kCentreGuard);
    AppendRightHalf(digits.substr(6), out);
    out.Append(LongCheckDigit(check));
    out.Append(kNormalGuard);
    out.Append(OutsideBars(check));
}

constexpr std::size_t kLongestAddOn = 10;

/** Nothing for no digits. */
void AppendAddOn(std::string_view digits, TextArea& out) {
    if (digits.empty()) return;
    const int32 parity = digits.size() == 2 ? AddOn2Parity(digits) : AddOn5Parity(digits);
    const std::string_view numberSets = parity < 5
                                            ? kAddOn2Parity[static_cast<std::size_t>(parity - 1)]
                                            : kAddOn5Parity[static_cast<std::size_t>(parity - 5)];
    for (std::size_t place = 0; place < digits.size(); ++place) {
        out.Append(place == 0 ? kAddOnStart : kAddOnDelineator);
        out.Append(InAddOn(digits[place], numberSets[place]));
    }
}

/** A symbology that takes an add-on. */
struct Symbology {
    std::size_t digitCount;
    std::string_view marker;
    void (*append)(std::string_view digits, TextArea& out);
};

constexpr Symbology kEan13{12, "***Bad EAN-13***", AppendEan13};
constexpr Symbology kJan13{12, "***Bad JAN-13***", AppendEan13};
constexpr Symbology kUpcA{11, "***Bad UPC-A***", AppendUpcA};

bool HasLengthFor(const Symbology& symbology, std::size_t length) {
    const std::size_t digitCount = symbology.digitCount;
    return length == digitCount || length == digitCount + 2 || length == digitCount + 5;
}

int16 Encode(const Symbology& symbology, DataBlock data) {
    const std::string_view digits = data.View();
    if (!HasLengthFor(symbology, digits.size()) || !AreDigits(digits))
        return FinishWith(data, symbology.marker, kBadData);
    FixedText<std::max(kEan13Size, kUpcASize) + kLongestAddOn> symbol;
    symbology.append(digits.substr(0, symbology.digitCount), symbol);
    AppendAddOn(digits.substr(symbology.digitCount), symbol);
    return FinishWith(data, symbol.View(), kEncoded);
}

constexpr int16 kBadUpcEData = -2;
constexpr int16 kBadUpcELength = -3;
constexpr std::size_t kUpcESize = 10;
constexpr uint32 kUpcEBlockSize = 24;

int16 CheckUpcEData(std::string_view data) {
    if (!data.starts_with('0')) return kBadUpcEData;
    if (data.size() != 7 && data.size() != 11) return kBadUpcELength;
    return AreDigits(data) ? kEncoded : kBadUpcEData;
}

/** The digits of manufacturer and product. */
using TenDigits = std::array<char, 10>;

/** From the data behind the number system digit. */
TenDigits ExpandUpcEData(std::string_view digits) {
    if (digits.size() == 6) return ExpandUpcE(digits);
    TenDigits tenDigits;
    std::copy(digits.begin(), digits.end(), tenDigits.begin());
    return tenDigits;
}

/** The six digits that are printed. Zeros beyond four come first; the zeros and the others together
 *  are never less than six. */
std::array<char, 6> PrintedUpcEDigits(const TenDigits& digits) {
    FixedText<std::tuple_size_v<TenDigits>> arranged;
    const auto zeros = std::count(digits.begin(), digits.end(), '0');
    arranged.Append(static_cast<std::size_t>(std::max<std::ptrdiff_t>(zeros - 4, 0)), '0');
    for (const char digit : digits)
        if (digit != '0') arranged.Append(digit);
    std::array<char, 6> printed;
    arranged.View().copy(printed.data(), printed.size());
    return printed;
}

void AppendUpcE(std::string_view data, TextArea& out) {
    const TenDigits digits = ExpandUpcEData(data.substr(1));
    const char check = Modulo10CheckDigit({digits.data(), digits.size()});
    const std::array<char, 6> printed = PrintedUpcEDigits(digits);
    out.Append(OutsideBars(data[0]));
    out.Append(kNormalGuard);
    AppendLeftHalf({printed.data(), printed.size()}, kUpcEParity[Value(check)], out);
    out.Append(kUpcERightGuard);
    out.Append(OutsideBars(check));
}

}  // namespace

int16 EncodeEan13Classic(DataBlock data) {
    return Encode(kEan13, data);
}
int16 EncodeJan13Classic(DataBlock data) {
    return Encode(kJan13, data);
}
int16 EncodeUpcAClassic(DataBlock data) {
    return Encode(kUpcA, data);
}

int16 EncodeUpcEClassic(DataBlock data) {
    if (const int16 status = CheckUpcEData(data.View()))
        return FinishWith(data, "***Bad UPC-E***", status);
    FixedText<kUpcESize> symbol;
    AppendUpcE(data.View(), symbol);
    return ReplaceData(data, symbol.View(), kUpcEBlockSize) ? kEncoded : kInternalError;
}

int32 AddOn2Parity(std::string_view digits) {
    return static_cast<int32>((10 * Value(digits[0]) + Value(digits[1])) % 4) + 1;
}

int32 AddOn5Parity(std::string_view digits) {
    return static_cast<int32>(AddOn5CheckValue(digits)) + 5;
}

}  // namespace linewright
