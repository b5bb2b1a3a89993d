#include "current/Msi.h"

#include "current/Front.h"
#include "current/PairGlyphs.h"
#include "standards/CheckDigits.h"

namespace linewright {

namespace {

constexpr FrontRule kFront{
    .length = AtMost(255),
    .characters = kDigitsOnly,
    .build = [](const char* text, const EncoderArguments& arguments, TextArea& symbol) {
        return BuildMsiCurrent(text, arguments.ratio, arguments.checkCharacter != 0, symbol);
    }};

constexpr std::string_view kStart = "wn";
constexpr std::string_view kStop = "nwnw";

/** The four bits of a digit, the most significant first: a 1 is a wide bar and a narrow space, a 0
 *  the reverse. */
void AppendDigit(char digit, const PairGlyphs& glyphs, TextArea& symbol) {
    for (int bit = 3; bit >= 0; --bit)
        glyphs.Append((digit - '0') >> bit & 1 ? "wn" : "nw", symbol);
}

}  // namespace

const char* MsiCheckDigit(const char* digits) {
    static char checkDigit[2];
    checkDigit[0] = MsiModulo10CheckDigit(digits);
    return checkDigit;
}

int16 BuildMsiCurrent(const char* data, double ratio, bool addCheckDigit, TextArea& symbol) {
    if (const int16 status = TextStatus(data)) return status;
    FixedText<kMaxBuilderText + 1> digits;
    AppendDigits(FirstCharacters(data), digits);
    if (digits.View().empty()) return kEmptyData;
    if (addCheckDigit) digits.Append(MsiModulo10CheckDigit(digits.View()));

    const PairGlyphs glyphs(ratio);
    glyphs.Append(kStart, symbol);
    for (const char digit : digits.View()) AppendDigit(digit, glyphs, symbol);
    glyphs.Append(kStop, symbol);
    return kEncoded;
}

int32 EncodeMsiCurrent(const EncoderArguments& arguments) {
    FixedText<kMsiCapacity> symbol;
    return EncodeByRule(kFront, arguments, symbol);
}

}  // namespace linewright
