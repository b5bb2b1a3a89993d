#include "current/Code39.h"

#include "current/Front.h"
#include "current/PairGlyphs.h"
#include "standards/Code39Patterns.h"

namespace linewright {

namespace {

constexpr char kOtherCharacters[] = " -.$/+%";

constexpr FrontRule kFront{
    .length = AtMost(255),
    .characters = {AreOfClass<kDigits | kUpperCase, kOtherCharacters>, hints::kUpperCasePlusSpaces},
    .build = [](std::string_view text, const EncoderArguments& arguments, TextArea& symbol) {
        return BuildCode39Current(text, arguments.ratio, arguments.checkCharacter != 0, symbol);
    }};

constexpr std::size_t kLettersPerCharacter = 5;

struct Letters {
    Characters characters{};
    /** By value, the start/stop character last. */
    std::array<Word, kCode39Patterns.size()> patterns{};
};

/** Lower-case letters count as capitals. */
constexpr LettersByRatio kLetters([](PairGlyphs glyphs) {
    Letters letters;
    for (std::size_t value = 0; value < kCode39Patterns.size(); ++value)
        letters.patterns[value] = glyphs.Of(kCode39Patterns[value]);
    for (std::size_t value = 0; value < kCode39Characters.size(); ++value) {
        const auto byte = static_cast<uint8>(kCode39Characters[value]);
        letters.characters[byte] = {letters.patterns[value], kLettersPerCharacter, value};
        if (byte >= 'A') letters.characters[byte - 'A' + 'a'] = letters.characters[byte];
    }
    return letters;
});

}  // namespace

int16 BuildCode39Current(std::string_view data, double ratio, bool addCheckCharacter,
                         TextArea& symbolText) {
    if (const int16 status = TextStatus(data)) return status;
    const Letters& letters = kLetters.For(ratio);
    LetterWriter symbol(symbolText);
    const auto append = [&](std::size_t value) {
        symbol.Append(letters.patterns[value], kLettersPerCharacter);
    };

    append(kCode39StartStop);
    std::size_t sum = 0;
    for (const char byte : FirstCharacters(data)) {
        const CharacterLetters character = letters.characters[static_cast<uint8>(byte)];
        character.AppendTo(symbol);
        sum += character.Value();
    }
    if (addCheckCharacter) append(sum % kCode39Characters.size());
    append(kCode39StartStop);
    return kEncoded;
}

int32 EncodeCode39Current(const EncoderArguments& arguments) {
    FixedText<kCode39Capacity> symbol;
    return EncodeByRule(kFront, arguments, symbol);
}

}  // namespace linewright
