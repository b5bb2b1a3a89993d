#include "current/Msi.h"

#include "current/DigitLetters.h"
#include "current/Front.h"
#include "current/PairGlyphs.h"
#include "standards/CheckDigits.h"

namespace linewright {

namespace {

constexpr FrontRule kFront{
    .length = AtMost(255),
    .characters = kDigitsOnly,
    .build = [](std::string_view text, const EncoderArguments& arguments, TextArea& symbol) {
        return BuildMsiCurrent(text, arguments.ratio, arguments.checkCharacter != 0, symbol);
    }};

constexpr std::string_view kStart = "wn";
constexpr std::string_view kStop = "nwnw";

constexpr std::size_t kLettersPerDigit = 4;

struct Letters {
    Word start;
    DigitLetters<kLettersPerDigit> digits;
    Word stop;
};

constexpr LettersByRatio kLetters([](PairGlyphs glyphs) {
    std::array<Word, 10> digits{};
    for (std::size_t digit = 0; digit < digits.size(); ++digit) {
        // The four bits of the digit, the most significant first: a 1 is a wide bar and a narrow
        // space, a 0 the reverse.
        std::array<char, 2 * kLettersPerDigit> pattern{};
        for (std::size_t bit = 0; bit < kLettersPerDigit; ++bit) {
            const bool isOne = (digit >> (kLettersPerDigit - 1 - bit) & 1) != 0;
            pattern[2 * bit] = isOne ? 'w' : 'n';
            pattern[2 * bit + 1] = isOne ? 'n' : 'w';
        }
        digits[digit] = glyphs.Of({pattern.data(), pattern.size()});
    }
    return Letters{glyphs.Of(kStart), DigitLetters<kLettersPerDigit>(digits), glyphs.Of(kStop)};
});

}  // namespace

const char* MsiCheckDigit(const char* digits) {
    static char checkDigit[2];
    checkDigit[0] = MsiModulo10CheckDigit(digits);
    return checkDigit;
}

int16 BuildMsiCurrent(std::string_view data, double ratio, bool addCheckDigit,
                      TextArea& symbolText) {
    if (const int16 status = TextStatus(data)) return status;
    FixedText<kMaxBuilderText> spare;
    const std::string_view digits = OnlyDigits(FirstCharacters(data), kMaxBuilderText, spare);
    if (digits.empty()) return kEmptyData;

    const Letters& letters = kLetters.For(ratio);
    LetterWriter symbol(symbolText);
    symbol.Append(letters.start, kStart.size() / 2);
    letters.digits.AppendTo(symbol, digits);
    if (addCheckDigit) letters.digits.AppendTo(symbol, MsiModulo10CheckDigit(digits));
    symbol.Append(letters.stop, kStop.size() / 2);
    return kEncoded;
}

int32 EncodeMsiCurrent(const EncoderArguments& arguments) {
    FixedText<kMsiCapacity> symbol;
    return EncodeByRule(kFront, arguments, symbol);
}

}  // namespace linewright
