#include "current/Postnet.h"

#include <array>

#include "current/DigitLetters.h"
#include "current/FontLetters.h"
#include "current/Front.h"
#include "standards/CheckDigits.h"

namespace linewright {

namespace {

constexpr std::string_view kBadZipCode = "***Bad Zip Code***";

constexpr std::size_t kLettersPerDigit = 3;

constexpr DigitLetters<kLettersPerDigit> kDigitLetters([] {
    std::array<Word, 10> letters{};
    for (int digit = 0; digit < 10; ++digit) {
        const unsigned bars = current::PostnetBarsOf(digit);
        const char text[kLettersPerDigit]{current::kBarPairs[bars >> 3],
                                          current::kBarPairs[bars >> 1 & 3],
                                          bars & 1 ? current::kTallBar : current::kShortBar};
        letters[static_cast<std::size_t>(digit)] = MakeWord({text, kLettersPerDigit});
    }
    return letters;
}());

}  // namespace

int16 BuildPostnetCurrent(std::string_view data, bool addCheckDigit, TextArea& symbolText) {
    if (const int16 status = TextStatus(data)) return status;
    FixedText<kMaxBuilderText> spare;
    const std::string_view digits = OnlyDigits(FirstCharacters(data), kMaxBuilderText, spare);

    LetterWriter symbol(symbolText);
    symbol.Append(current::kTallBar);
    kDigitLetters.AppendTo(symbol, digits);
    if (addCheckDigit) kDigitLetters.AppendTo(symbol, PostnetCheckDigit(digits));
    symbol.Append(current::kTallBar);
    return kEncoded;
}

int32 EncodePostnetCurrent(const EncoderArguments& arguments) {
    if (arguments.data.length > kMaxFrontLength)
        return FinishWith(arguments.data, kBadZipCode, kBadData);

    const std::string_view data = arguments.data.View();
    FixedText<kPostnetCapacity> symbol;
    const int16 status = BuildPostnetCurrent(data.empty() ? "" : data.substr(0, data.find('\0')),
                                             arguments.checkCharacter != 0, symbol);
    return FinishWith(arguments.data, status == kEncoded ? symbol.View() : kBadZipCode, status);
}

}  // namespace linewright
