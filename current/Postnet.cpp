#include "current/Postnet.h"

#include <array>

#include "current/Front.h"
#include "standards/CheckDigits.h"

namespace linewright {

namespace {

constexpr std::string_view kBadZipCode = "***Bad Zip Code***";

constexpr char kTallBar = 'n';
constexpr char kShortBar = 'o';
/** Short-short, short-tall, tall-short, tall-tall. */
constexpr std::string_view kBarPairs = "jklm";

/** The bars of a digit as bits, the first one highest. Two are tall: those whose weights 7, 4, 2, 1
 *  and 0 add up to the digit, and 7 and 4 for 0. */
constexpr unsigned BarsOf(int digit) {
    constexpr std::array<int, 5> kWeights{0, 1, 2, 4, 7};
    for (std::size_t low = 0; low < kWeights.size(); ++low)
        for (std::size_t high = low + 1; high < kWeights.size(); ++high)
            if ((kWeights[low] + kWeights[high]) % 11 == digit) return 1u << low | 1u << high;
    return 0;
}
static_assert(BarsOf(0) == 0b11000 && BarsOf(1) == 0b00011 && BarsOf(9) == 0b10100);

void AppendDigit(char digit, TextArea& symbol) {
    const unsigned bars = BarsOf(digit - '0');
    symbol.Append(kBarPairs[bars >> 3]);
    symbol.Append(kBarPairs[bars >> 1 & 3]);
    symbol.Append(bars & 1 ? kTallBar : kShortBar);
}

}  // namespace

int16 BuildPostnetCurrent(const char* data, bool addCheckDigit, TextArea& symbol) {
    if (const int16 status = TextStatus(data)) return status;
    FixedText<kMaxBuilderText + 1> digits;
    AppendDigits(FirstCharacters(data), digits);
    if (addCheckDigit) digits.Append(PostnetCheckDigit(digits.View()));

    symbol.Append(kTallBar);
    for (const char digit : digits.View()) AppendDigit(digit, symbol);
    symbol.Append(kTallBar);
    return kEncoded;
}

int32 EncodePostnetCurrent(const EncoderArguments& arguments) {
    if (arguments.data.length > kMaxFrontLength)
        return FinishWith(arguments.data, kBadZipCode, kBadData);

    FixedText<kMaxFrontLength + 1> text;
    text.Append(arguments.data.View());
    text.Append('\0');
    FixedText<kPostnetCapacity> symbol;
    const int16 status =
        BuildPostnetCurrent(text.View().data(), arguments.checkCharacter != 0, symbol);
    return FinishWith(arguments.data, status == kEncoded ? symbol.View() : kBadZipCode, status);
}

}  // namespace linewright
