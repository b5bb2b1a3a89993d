#include "current/Codabar.h"

#include "current/Front.h"
#include "current/PairGlyphs.h"
#include "standards/CodabarPatterns.h"

namespace linewright {

namespace {

constexpr FrontRule kFront{
    .length = Between(4, 255),
    .characters = {kDigits, "-$:/.+", hints::kDigitsPlus},
    .build = [](const char* text, const EncoderArguments& arguments, TextArea& symbol) {
        return BuildCodabarCurrent(text, arguments.ratio, "A", "B", symbol);
    }};

/** The character of a start or stop text. */
constexpr char StartStop(const char* text) {
    const std::string_view given = text ? text : "";
    return given.size() == 1 && given[0] >= 'A' && given[0] <= 'D' ? given[0] : 'A';
}

constexpr char ToCapital(char character) {
    return character >= 'a' && character <= 'd' ? static_cast<char>(character - 'a' + 'A')
                                                : character;
}

}  // namespace

int16 BuildCodabarCurrent(const char* data, double ratio, const char* start, const char* stop,
                          TextArea& symbol) {
    if (const int16 status = TextStatus(data)) return status;
    const PairGlyphs glyphs(ratio);
    const auto append = [&](char character) {
        if (const auto value = CodabarValue(ToCapital(character)))
            glyphs.Append(kCodabarPatterns[*value], symbol);
    };

    append(StartStop(start));
    for (const char character : FirstCharacters(data)) append(character);
    append(StartStop(stop));
    return kEncoded;
}

int32 EncodeCodabarCurrent(const EncoderArguments& arguments) {
    FixedText<kCodabarCapacity> symbol;
    return EncodeByRule(kFront, arguments, symbol);
}

}  // namespace linewright
