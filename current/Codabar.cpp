#include "current/Codabar.h"

#include "current/Front.h"
#include "current/PairGlyphs.h"
#include "standards/CodabarPatterns.h"

namespace linewright {

namespace {

constexpr char kOtherCharacters[] = "-$:/.+";

constexpr FrontRule kFront{
    .length = Between(4, 255),
    .characters = {AreOfClass<kDigits, kOtherCharacters>, hints::kDigitsPlus},
    .build = [](std::string_view text, const EncoderArguments& arguments, TextArea& symbol) {
        return BuildCodabarCurrent(text, arguments.ratio, "A", "B", symbol);
    }};

/** The character of a start or stop text. */
constexpr char StartStop(const char* text) {
    const std::string_view given = text ? text : "";
    return given.size() == 1 && given[0] >= 'A' && given[0] <= 'D' ? given[0] : 'A';
}

constexpr std::size_t kLettersPerCharacter = 4;

/** "a" to "d" count as capitals. */
constexpr LettersByRatio kCharacters([](PairGlyphs glyphs) {
    Characters characters{};
    for (std::size_t value = 0; value < kCodabarCharacters.size(); ++value) {
        const auto byte = static_cast<uint8>(kCodabarCharacters[value]);
        characters[byte] = {glyphs.Of(kCodabarPatterns[value]), kLettersPerCharacter, value};
        if (byte >= 'A') characters[byte - 'A' + 'a'] = characters[byte];
    }
    return characters;
});

}  // namespace

int16 BuildCodabarCurrent(std::string_view data, double ratio, const char* start, const char* stop,
                          TextArea& symbolText) {
    if (const int16 status = TextStatus(data)) return status;
    const Characters& characters = kCharacters.For(ratio);
    LetterWriter symbol(symbolText);
    const auto append = [&](char c) { characters[static_cast<uint8>(c)].AppendTo(symbol); };

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
