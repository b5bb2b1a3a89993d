#include "classic/Code39.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "classic/FontLetters.h"
#include "core/CharClasses.h"
#include "core/CharacterLetters.h"
#include "core/Status.h"
#include "standards/CheckDigits.h"
#include "standards/Code39Patterns.h"

namespace linewright {

namespace {

constexpr std::string_view kBadDataMarker = "***Bad Code 39***";
constexpr std::string_view kBadChecksumMarker = "***Bad Code 39 Checksum***";

/** Values of `checkMode`; all others are modulo 43. */
constexpr uint16 kNoCheck = 0;
constexpr uint16 kNumericCheck = 1;

/** Each byte becomes two characters at most, and they shall fit a short string. */
constexpr std::size_t kLongestFullAscii = kMaxPStringLength / 2;

/** A run of bytes, from `first` to the next one's, that full ASCII writes by consecutive letters
 *  behind a shift character, or without one as themselves. */
struct FullAsciiRun {
    uint8 first;
    char shift;
    char letter;
};

constexpr char kNoShift = '\0';

/** ISO/IEC 16388:2007, annex on full ASCII; up to byte 127. */
constexpr FullAsciiRun kFullAscii[] = {
    {0, '%', 'U'},   {1, '$', 'A'},        {27, '%', 'A'},  {' ', kNoShift, ' '},
    {'!', '/', 'A'}, {'-', kNoShift, '-'}, {'/', '/', 'O'}, {'0', kNoShift, '0'},
    {':', '/', 'Z'}, {';', '%', 'F'},      {'@', '%', 'V'}, {'A', kNoShift, 'A'},
    {'[', '%', 'K'}, {'`', '%', 'W'},      {'a', '+', 'A'}, {'{', '%', 'P'},
};

constexpr uint8 kDropped = 128;

constexpr const FullAsciiRun& RunOf(uint8 byte) {
    return *std::prev(
        std::upper_bound(std::begin(kFullAscii), std::end(kFullAscii), byte,
                         [](uint8 value, const FullAsciiRun& run) { return value < run.first; }));
}

bool ExpandFullAscii(std::string_view data, TextArea& out) {
    for (const char character : data) {
        const auto byte = static_cast<uint8>(character);
        if (byte > kDropped) return false;
        if (byte == kDropped) continue;
        const FullAsciiRun& run = RunOf(byte);
        if (run.shift != kNoShift) out.Append(run.shift);
        out.Append(static_cast<char>(run.letter + (byte - run.first)));
    }
    return true;
}

constexpr char FontCharacter(char character) {
    return character == ' ' ? classic::kCode39Space : character;
}

constexpr Characters kCharacters = [] {
    Characters characters{};
    for (std::size_t value = 0; value < kCode39Characters.size(); ++value) {
        const char character = kCode39Characters[value];
        const char letter = FontCharacter(character);
        characters[static_cast<uint8>(character)] = {MakeWord({&letter, 1}), 1, value};
    }
    return characters;
}();

/** One character or two, whose values are added. */
constexpr Characters kFullAsciiCharacters = [] {
    Characters characters{};
    for (uint8 byte = 0; byte < kDropped; ++byte) {
        const FullAsciiRun& run = RunOf(byte);
        const char character = static_cast<char>(run.letter + (byte - run.first));
        const CharacterLetters& last = kCharacters[static_cast<uint8>(character)];
        characters[byte] = run.shift == kNoShift
                               ? last
                               : kCharacters[static_cast<uint8>(run.shift)].FollowedBy(last);
    }
    return characters;
}();

/** Modulo 10 with the doubling anchored at the leftmost digit, unlike other such rules. */
char NumericCheckDigit(std::string_view digits) {
    std::size_t sum = 0;
    bool isDoubled = true;
    for (const char digit : digits) {
        const auto value = static_cast<std::size_t>(digit - '0');
        const std::size_t counted = isDoubled ? 2 * value : value;
        sum += counted / 10 + counted % 10;
        isDoubled = !isDoubled;
    }
    return Modulo10Complement(sum);
}

/** None for a value that no character has. */
std::optional<char> CheckCharacter(std::size_t value) {
    if (value >= kCode39Characters.size()) return std::nullopt;
    return FontCharacter(kCode39Characters[value]);
}

/** The check digit of data that is digits alone, apart from what full ASCII drops. */
std::optional<char> FindNumericCheckDigit(std::string_view data, bool fullAscii) {
    FixedText<2 * kLongestFullAscii> expanded;
    const bool isExpanded = fullAscii && ExpandFullAscii(data, expanded);
    const std::string_view digits = isExpanded ? expanded.View() : data;
    if (!AreDigits(digits)) return std::nullopt;
    return NumericCheckDigit(digits);
}

/** Appends the data, of whose values `sum` is the sum; false at a character that cannot be encoded.
 */
bool AppendCharacters(std::string_view data, bool fullAscii, std::size_t& sum, TextArea& text) {
    const Characters& characters = fullAscii ? kFullAsciiCharacters : kCharacters;
    LetterWriter symbol(text);
    for (const char byte : data) {
        const CharacterLetters character = characters[static_cast<uint8>(byte)];
        if (!character.HasLetters() && !(fullAscii && static_cast<uint8>(byte) == kDropped))
            return false;
        character.AppendTo(symbol);
        sum += character.Value();
    }
    return true;
}

}  // namespace

std::string_view BuildCode39Classic(std::string_view data, const ClassicCode39Options& options,
                                    TextArea& symbol) {
    if (data.size() > (options.fullAscii ? kLongestFullAscii : kMaxPStringLength))
        return kBadDataMarker;
    const bool isNumeric = options.checkMode == kNumericCheck;
    const std::optional<char> digit =
        isNumeric ? FindNumericCheckDigit(data, options.fullAscii) : std::nullopt;
    if (isNumeric && !digit) return kBadDataMarker;

    const char startStop = classic::kCode39StartStops[options.useAsterisk ? 0 : 1];
    std::size_t sum = 0;
    symbol.Append(startStop);
    if (!AppendCharacters(data, options.fullAscii, sum, symbol)) return kBadDataMarker;
    const std::optional<char> check =
        isNumeric ? digit : CheckCharacter(sum % kCode39Characters.size());
    if (!check) return kBadChecksumMarker;
    if (options.checkMode != kNoCheck) symbol.Append(*check);
    symbol.Append(startStop);
    return {};
}

int16 EncodeCode39Classic(DataBlock data, const ClassicCode39Options& options) {
    FixedText<kCode39ClassicCapacity> symbol;
    const std::string_view marker = BuildCode39Classic(data.View(), options, symbol);
    if (!marker.empty()) return FinishWith(data, marker, kBadData);
    return FinishWith(data, symbol.View(), kEncoded);
}

int32 ExpandCode39FullAscii(PString& string) {
    FixedText<2 * kMaxPStringLength> expanded;
    if (!ExpandFullAscii(string.View(), expanded)) return kBadData;
    SetPString(string, expanded.View());
    return 0;
}

}  // namespace linewright
