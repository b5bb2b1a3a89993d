#include "current/Postnet.h"

#include <array>

#include "current/FontLetters.h"
#include "current/Front.h"
#include "standards/CheckDigits.h"

namespace linewright {

namespace {

constexpr std::string_view kBadZipCode = "***Bad Zip Code***";

constexpr std::size_t kLettersPerDigit = 3;

constexpr std::array<Word, 10> kDigitLetters = [] {
    std::array<Word, 10> letters{};
    for (int digit = 0; digit < 10; ++digit) {
        const unsigned bars = current::PostnetBarsOf(digit);
        const char text[kLettersPerDigit]{current::kBarPairs[bars >> 3],
                                          current::kBarPairs[bars >> 1 & 3],
                                          bars & 1 ? current::kTallBar : current::kShortBar};
        letters[static_cast<std::size_t>(digit)] = MakeWord({text, kLettersPerDigit});
    }
    return letters;
}();

}  // namespace

int16 BuildPostnetCurrent(const char* data, bool addCheckDigit, TextArea& symbolText) {
    if (const int16 status = TextStatus(data)) return status;
    FixedText<kMaxBuilderText> spare;
    const std::string_view digits = OnlyDigits(FirstCharacters(data), kMaxBuilderText, spare);

    LetterWriter symbol(symbolText);
    const auto append = [&](char digit) {
        symbol.Append(kDigitLetters[static_cast<std::size_t>(digit - '0')], kLettersPerDigit);
    };
    symbol.Append(current::kTallBar);
    for (const char digit : digits) append(digit);
    if (addCheckDigit) append(PostnetCheckDigit(digits));
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
