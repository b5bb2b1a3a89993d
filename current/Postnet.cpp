#include "current/Postnet.h"

#include "current/FontLetters.h"
#include "current/Front.h"
#include "standards/CheckDigits.h"

namespace linewright {

namespace {

constexpr std::string_view kBadZipCode = "***Bad Zip Code***";

void AppendDigit(char digit, TextArea& symbol) {
    const unsigned bars = current::PostnetBarsOf(digit - '0');
    symbol.Append(current::kBarPairs[bars >> 3]);
    symbol.Append(current::kBarPairs[bars >> 1 & 3]);
    symbol.Append(bars & 1 ? current::kTallBar : current::kShortBar);
}

}  // namespace

int16 BuildPostnetCurrent(const char* data, bool addCheckDigit, TextArea& symbol) {
    if (const int16 status = TextStatus(data)) return status;
    FixedText<kMaxBuilderText + 1> digits;
    AppendDigits(FirstCharacters(data), digits);
    if (addCheckDigit) digits.Append(PostnetCheckDigit(digits.View()));

    symbol.Append(current::kTallBar);
    for (const char digit : digits.View()) AppendDigit(digit, symbol);
    symbol.Append(current::kTallBar);
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
