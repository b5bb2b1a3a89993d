#include "current/Interleaved2of5.h"

#include "current/Front.h"
#include "current/PairGlyphs.h"
#include "standards/CheckDigits.h"
#include "standards/Interleaved2of5Patterns.h"

namespace linewright {

namespace {

constexpr std::string_view kStart = "nnnn";
constexpr std::string_view kStop = "wnn";

int16 AppendText(const char* text, const EncoderArguments& arguments, TextArea& symbol) {
    const std::string_view digits = text;
    symbol.Append(digits);
    if (arguments.checkCharacter)
        symbol.Append(static_cast<char>(':' - AlternatingSum(digits, 3, 1) % 10));
    return kEncoded;
}

constexpr FrontRule kBarsFront{
    .length = AtMost(255),
    .characters = kDigitsOnly,
    .padToPairs = true,
    .build = [](const char* text, const EncoderArguments& arguments, TextArea& symbol) {
        return BuildInterleaved2of5Current(text, arguments.ratio, arguments.checkCharacter != 0,
                                           symbol);
    }};

constexpr FrontRule kTextFront{.length = kBarsFront.length,
                               .characters = kBarsFront.characters,
                               .padToPairs = kBarsFront.padToPairs,
                               .build = AppendText};

std::string_view PatternOf(char digit) {
    return kInterleaved2of5Patterns[static_cast<std::size_t>(digit - '0')];
}

/** The first digit's elements are the bars, the second one's the spaces. */
void AppendPair(char first, char second, const PairGlyphs& glyphs, TextArea& symbol) {
    for (std::size_t element = 0; element < PatternOf(first).size(); ++element)
        symbol.Append(glyphs.Of(PatternOf(first)[element], PatternOf(second)[element]));
}

}  // namespace

int16 BuildInterleaved2of5Current(const char* data, double ratio, bool addCheckDigit,
                                  TextArea& symbol) {
    if (const int16 status = TextStatus(data)) return status;
    FixedText<kMaxBuilderText + 2> padded;
    padded.Append('0');
    AppendDigits(FirstCharacters(data), padded);
    if (addCheckDigit) padded.Append(Modulo10CheckDigit(padded.View()));
    const std::string_view digits = padded.View().substr(padded.View().size() % 2);

    const PairGlyphs glyphs(ratio);
    glyphs.Append(kStart, symbol);
    for (std::size_t place = 0; place < digits.size(); place += 2)
        AppendPair(digits[place], digits[place + 1], glyphs, symbol);
    glyphs.Append(kStop, symbol);
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
