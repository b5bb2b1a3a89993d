#include "current/Code39.h"

#include "current/Front.h"
#include "current/PairGlyphs.h"
#include "standards/Code39Patterns.h"

namespace linewright {

namespace {

constexpr FrontRule kFront{
    .length = AtMost(255),
    .characters = {kDigits | kUpperCase, " -.$/+%", hints::kUpperCasePlusSpaces},
    .build = [](const char* text, const EncoderArguments& arguments, TextArea& symbol) {
        return BuildCode39Current(text, arguments.ratio, arguments.checkCharacter != 0, symbol);
    }};

constexpr char ToUpperCase(char character) {
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A')
                                                : character;
}

}  // namespace

int16 BuildCode39Current(const char* data, double ratio, bool addCheckCharacter, TextArea& symbol) {
    if (const int16 status = TextStatus(data)) return status;
    const PairGlyphs glyphs(ratio);
    const auto append = [&](std::size_t value) { glyphs.Append(kCode39Patterns[value], symbol); };

    append(kCode39StartStop);
    std::size_t sum = 0;
    for (const char character : FirstCharacters(data)) {
        const auto value = Code39Value(ToUpperCase(character));
        if (!value) continue;
        append(*value);
        sum += *value;
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
