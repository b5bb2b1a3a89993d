#include "current/Interleaved2of5.h"

#include "current/Front.h"
#include "current/PairGlyphs.h"
#include "standards/CheckDigits.h"
#include "standards/Interleaved2of5Patterns.h"

namespace linewright {

namespace {

constexpr std::string_view kStart = "nnnn";
constexpr std::string_view kStop = "wnn";

int16 AppendText(std::string_view digits, const EncoderArguments& arguments, TextArea& symbol) {
    symbol.Append(digits);
    if (arguments.checkCharacter)
        symbol.Append(static_cast<char>(':' - AlternatingSum(digits, 3, 1) % 10));
    return kEncoded;
}

constexpr FrontRule kBarsFront{
    .length = AtMost(255),
    .characters = kDigitsOnly,
    .padToPairs = true,
    .build = [](std::string_view text, const EncoderArguments& arguments, TextArea& symbol) {
        return BuildInterleaved2of5Current(text, arguments.ratio, arguments.checkCharacter != 0,
                                           symbol);
    }};

constexpr FrontRule kTextFront{.length = kBarsFront.length,
                               .characters = kBarsFront.characters,
                               .padToPairs = kBarsFront.padToPairs,
                               .build = AppendText};

constexpr std::size_t kLettersPerPair = 5;

struct Letters {
    Word start;
    /** By the value of a pair of digits. */
    std::array<Word, 100> pairs;
    Word stop;
};

constexpr LettersByRatio kLetters([](PairGlyphs glyphs) {
    Letters letters{glyphs.Of(kStart), {}, glyphs.Of(kStop)};
    for (std::size_t pair = 0; pair < letters.pairs.size(); ++pair) {
        // The first digit's elements are the bars, the second one's the spaces.
        const std::string_view bars = kInterleaved2of5Patterns[pair / 10];
        const std::string_view spaces = kInterleaved2of5Patterns[pair % 10];
        std::array<char, 2 * kLettersPerPair> pattern{};
        for (std::size_t element = 0; element < kLettersPerPair; ++element) {
            pattern[2 * element] = bars[element];
            pattern[2 * element + 1] = spaces[element];
        }
        letters.pairs[pair] = glyphs.Of({pattern.data(), pattern.size()});
    }
    return letters;
});

}  // namespace

int16 BuildInterleaved2of5Current(std::string_view data, double ratio, bool addCheckDigit,
                                  TextArea& symbolText) {
    if (const int16 status = TextStatus(data)) return status;
    FixedText<kMaxBuilderText> spare;
    std::string_view digits = OnlyDigits(FirstCharacters(data), kMaxBuilderText, spare);
    FixedText<kMaxBuilderText + 1> completed;
    if (addCheckDigit) {
        completed.Append(digits);
        completed.Append(Modulo10CheckDigit(digits));
        digits = completed.View();
    }

    const Letters& letters = kLetters.For(ratio);
    LetterWriter symbol(symbolText);
    const auto appendPair = [&](char first, char second) {
        symbol.Append(letters.pairs[PairValue(first, second)], kLettersPerPair);
    };
    symbol.Append(letters.start, kStart.size() / 2);
    std::size_t place = digits.size() % 2;
    if (place == 1) appendPair('0', digits[0]);
    for (; place < digits.size(); place += 2) appendPair(digits[place], digits[place + 1]);
    symbol.Append(letters.stop, (kStop.size() + 1) / 2);
    return kEncoded;
}

int32 EncodeInterleaved2of5Current(const EncoderArguments& arguments) {
    FixedText<kInterleaved2of5Capacity> symbol;
    return EncodeByRule(kBarsFront, arguments, symbol);
}

int32 EncodeInterleaved2of5TextCurrent(const EncoderArguments& arguments) {
    FixedText<kMaxFrontLength + 2> text;
    return EncodeByRule(kTextFront, arguments, text);
}

}  // namespace linewright
