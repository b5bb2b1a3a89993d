#include "classic/Code39.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "classic/FontLetters.h"
#include "core/CharClasses.h"
#include "core/FixedText.h"
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

bool ExpandFullAscii(std::string_view data, TextArea& out) {
    for (const char character : data) {
        const auto byte = static_cast<uint8>(character);
        if (byte > kDropped) return false;
        if (byte == kDropped) continue;
        const FullAsciiRun& run = *std::prev(
            std::upper_bound(std::begin(kFullAscii), std::end(kFullAscii), byte,
                             [](uint8 value, const FullAsciiRun& r) { return value < r.first; }));
        if (run.shift != kNoShift) out.Append(run.shift);
        out.Append(static_cast<char>(run.letter + (byte - run.first)));
    }
    return true;
}

constexpr char FontCharacter(char character) {
    return character == ' ' ? classic::kCode39Space : character;
}

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

/** Appends the data; false at a character outside the alphabet. */
bool AppendCharacters(std::string_view data, std::size_t& sum, TextArea& out) {
    for (const char character : data) {
        const std::optional<std::size_t> value = Code39Value(character);
        if (!value) return false;
        sum += *value;
        out.Append(FontCharacter(character));
    }
    return true;
}

/** Appends data and check character. The result is empty, or the marker of data that is refused. */
std::string_view AppendDataAndCheck(std::string_view data, uint16 mode, TextArea& out) {
    if (mode == kNumericCheck && !AreDigits(data)) return kBadDataMarker;
    std::size_t sum = 0;
    if (!AppendCharacters(data, sum, out)) return kBadDataMarker;
    const std::optional<char> check = mode == kNumericCheck
                                          ? NumericCheckDigit(data)
                                          : CheckCharacter(sum % kCode39Characters.size());
    if (!check) return kBadChecksumMarker;
    if (mode != kNoCheck) out.Append(*check);
    return {};
}

}  // namespace

int16 EncodeCode39Classic(DataBlock data, bool fullAscii, uint16 checkMode, bool useAsterisk) {
    if (data.length > (fullAscii ? kLongestFullAscii : kMaxPStringLength))
        return FinishWith(data, kBadDataMarker, kBadData);
    FixedText<2 * kLongestFullAscii> expanded;
    const bool isExpanded = fullAscii && ExpandFullAscii(data.View(), expanded);

    const char startStop = classic::kCode39StartStops[useAsterisk ? 0 : 1];
    FixedText<1 + kMaxPStringLength + 2> symbol;
    symbol.Append(startStop);
    const std::string_view marker =
        AppendDataAndCheck(isExpanded ? expanded.View() : data.View(), checkMode, symbol);
    if (!marker.empty()) return FinishWith(data, marker, kBadData);
    symbol.Append(startStop);
    return FinishWith(data, symbol.View(), kEncoded);
}

int32 ExpandCode39FullAscii(PString& string) {
    FixedText<2 * kMaxPStringLength> expanded;
    if (!ExpandFullAscii(string.View(), expanded)) return kBadData;
    SetPString(string, expanded.View());
    return 0;
}

}  // namespace linewright
