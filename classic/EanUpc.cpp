#include "classic/EanUpc.h"

#include <algorithm>
#include <array>

#include "core/CharClasses.h"
#include "core/FixedText.h"
#include "core/Status.h"
#include "retail/RetailSymbol.h"
#include "standards/CheckDigits.h"
#include "standards/UpcEZeroSuppression.h"

namespace linewright {

namespace {

constexpr const RetailAlphabet& kAlphabet = kClassicRetailAlphabet;

/** A symbology that takes an add-on. */
struct Symbology {
    std::size_t digitCount;
    std::string_view marker;
    void (*append)(std::string_view number, std::string_view addOn, TextArea& out);
};

void AppendUpc(std::string_view number, std::string_view addOn, TextArea& out) {
    AppendUpcA<kAlphabet>(number, addOn, kAlphabet.guard, out);
}

constexpr Symbology kEan13{12, "***Bad EAN-13***", AppendEan13<kAlphabet>};
constexpr Symbology kJan13{12, "***Bad JAN-13***", AppendEan13<kAlphabet>};
constexpr Symbology kUpcA{11, "***Bad UPC-A***", AppendUpc};

bool HasLengthFor(const Symbology& symbology, std::size_t length) {
    const std::size_t digitCount = symbology.digitCount;
    return length == digitCount || length == digitCount + 2 || length == digitCount + 5;
}

int16 Encode(const Symbology& symbology, DataBlock data) {
    const std::string_view digits = data.View();
    if (!HasLengthFor(symbology, digits.size()) || !AreDigits(digits))
        return FinishWith(data, symbology.marker, kBadData);
    FixedText<std::max(kLongestEan13, kLongestUpcA)> symbol;
    symbology.append(digits.substr(0, symbology.digitCount), digits.substr(symbology.digitCount),
                     symbol);
    return FinishWith(data, symbol.View(), kEncoded);
}

constexpr int16 kBadUpcEData = -2;
constexpr int16 kBadUpcELength = -3;
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

void AppendSymbol(std::string_view data, TextArea& out) {
    const TenDigits digits = ExpandUpcEData(data.substr(1));
    const char check = Modulo10CheckDigit({digits.data(), digits.size()});
    const auto printed = PrintedUpcEDigits(digits);
    AppendUpcE<kAlphabet>({.numberSystem = data[0],
                           .six = {printed.data(), printed.size()},
                           .parityOf = data[0],
                           .checkDigit = check},
                          {}, out);
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
    FixedText<kLongestUpcE> symbol;
    AppendSymbol(data.View(), symbol);
    return ReplaceData(data, symbol.View(), kUpcEBlockSize) ? kEncoded : kInternalError;
}

int32 AddOn2Parity(std::string_view digits) {
    return static_cast<int32>(AddOn2CheckValue(digits)) + 1;
}

int32 AddOn5Parity(std::string_view digits) {
    return static_cast<int32>(AddOn5CheckValue(digits)) + 5;
}

}  // namespace linewright
