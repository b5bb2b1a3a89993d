#include <array>
#include <utility>
#include <vector>

#include "classic/FontLetters.h"
#include "current/FontLetters.h"
#include "meaning/Bars.h"
#include "meaning/Code128Text.h"
#include "meaning/PlainBars.h"
#include "standards/Code128Patterns.h"

namespace linewright::meaning {

namespace {

constexpr unsigned char kNoValue = 255;

using Values = std::vector<unsigned char>;

// ISO/IEC 15417:2007, table 1: what the values from 95 on do.
constexpr int kDelete = 95;  // in set B
constexpr int kFnc3 = 96;
constexpr int kFnc2 = 97;
constexpr int kShift = 98;
constexpr int kCodeC = 99;
constexpr int kCodeB = 100;  // FNC4 in set B
constexpr int kCodeA = 101;  // FNC4 in set A
constexpr int kFnc1 = 102;

class Decoder {
  public:
    explicit Decoder(int startValue)
        : set(static_cast<char>('A' + (startValue - static_cast<int>(kCode128StartA)))) {}

    void Take(int value) {
        const bool isShifted = std::exchange(isNextShifted, false);
        if (value == kFnc1) {
            text.AddFnc1();
        } else if (set == 'C') {
            TakeInSetC(value);
        } else if (value < kFnc3) {
            text.Add(CharacterOf(value, (set == 'A') != isShifted));
        } else {
            TakeFunction(value);
        }
    }

    Code128Text text;

  private:
    static char CharacterOf(int value, bool isSetA) {
        return static_cast<char>(isSetA && value >= 64 ? value - 64 : value + 32);
    }

    void TakeInSetC(int value) {
        if (value < kCodeB) {
            text.AddPair(value);
        } else {
            set = value == kCodeB ? 'B' : 'A';
        }
    }

    void TakeFunction(int value) {
        const int fnc4 = set == 'A' ? kCodeA : kCodeB;
        if (value == fnc4) {
            text.AddFnc4();
        } else if (value == kShift) {
            isNextShifted = true;
        } else if (value == kFnc2 || value == kFnc3) {
            text.AddOther();
        } else {
            set = value == kCodeC ? 'C' : value == kCodeB ? 'B' : 'A';
        }
    }

    char set;
    bool isNextShifted = false;
};

/** From the start character to the check character. */
Bars BarsOf(const Values& values) {
    if (values.empty()) return {};
    const std::size_t start = values.front();
    if (start < kCode128StartA) return {Symbol::kNoStart};
    if (start > kCode128StartC || values.size() < 2) return {};
    Decoder decoder(static_cast<int>(start));
    std::size_t sum = start;
    for (std::size_t place = 1; place + 1 < values.size(); ++place) {
        if (values[place] >= kCode128StartA) return {};
        sum += place * values[place];
        decoder.Take(values[place]);
    }
    if (values.back() != sum % kCode128Modulus) return {Symbol::kWrongCheck};
    return {.symbol = Symbol::kRead, .text = decoder.text.text, .isGs1 = decoder.text.isGs1};
}

/** The values of the classic font's bytes, from all ways in which they are written. */
constexpr std::array<unsigned char, 256> kClassicValues = [] {
    std::array<unsigned char, 256> values{};
    values.fill(kNoValue);
    for (int character = 0; character < 135; ++character) {
        const auto byte = classic::CharacterByte(static_cast<unsigned char>(character));
        values[byte] = static_cast<unsigned char>(character < 32 ? character + 64 : character - 32);
    }
    for (int pair = 0; pair < 100; ++pair) {
        values[classic::PairByte(pair)] = static_cast<unsigned char>(pair);
    }
    for (int check = 0; check < static_cast<int>(kCode128Modulus); ++check) {
        values[classic::CheckByte(check)] = static_cast<unsigned char>(check);
    }
    for (std::size_t set = 0; set < classic::kStartBytes.size(); ++set) {
        values[classic::kStartBytes[set]] = static_cast<unsigned char>(kCode128StartA + set);
    }
    return values;
}();

constexpr std::size_t kLetters = 16;

/** The place of three letters of the bars font among all of them; none for other characters. */
constexpr std::size_t PlaceOf(std::string_view letters) {
    std::size_t place = 0;
    for (const char letter : letters) {
        if (letter < 'A' || letter >= 'A' + static_cast<int>(kLetters))
            return std::string_view::npos;
        place = kLetters * place + static_cast<std::size_t>(letter - 'A');
    }
    return place;
}

constexpr std::array<unsigned char, kLetters* kLetters* kLetters> kValues = [] {
    std::array<unsigned char, kLetters * kLetters * kLetters> values{};
    values.fill(kNoValue);
    for (std::size_t value = 0; value < kCode128Widths.size(); ++value) {
        const std::string_view widths = kCode128Widths[value];
        std::array<char, 3> letters{};
        for (std::size_t pair = 0; pair < letters.size(); ++pair) {
            letters[pair] = current::LetterOf(widths[2 * pair], widths[2 * pair + 1]);
        }
        values[PlaceOf({letters.data(), letters.size()})] = static_cast<unsigned char>(value);
    }
    return values;
}();

int ValueOf(const char* letters) {
    const std::size_t place = PlaceOf({letters, 3});
    return place < kValues.size() ? kValues[place] : kNoValue;
}

/** Sets characters against data, which they have to say in its order. */
class PlainComparison {
  public:
    PlainComparison(int startValue, std::string_view data)
        : set(static_cast<char>('A' + (startValue - static_cast<int>(kCode128StartA)))),
          rest(data) {}

    /** False for what is not next in the data, and for functions other than changes of the set. */
    bool Take(int value) {
        const bool isShifted = std::exchange(isNextShifted, false);
        if (set == 'C' && value < kCodeB) return TakePair(value);
        if (set != 'C' && value < kFnc3) return TakeCharacter(value, (set == 'A') != isShifted);
        if (value == kShift && set != 'C') {
            isNextShifted = true;
        } else if (value == kCodeC && set != 'C') {
            set = 'C';
        } else if (value == kCodeB && set != 'B') {
            set = 'B';
        } else if (value == kCodeA && set != 'A') {
            set = 'A';
        } else {
            return false;
        }
        return true;
    }

    bool IsAtEnd() const { return rest.empty(); }

  private:
    bool TakePair(int pair) {
        if (rest.size() < 2 || rest[0] != '0' + pair / 10 || rest[1] != '0' + pair % 10) {
            return false;
        }
        rest.remove_prefix(2);
        return true;
    }

    bool TakeCharacter(int value, bool isSetA) {
        const int character = value + 32;
        const bool isPrintable = isSetA ? value < 64 : value < kDelete;
        if (!isPrintable || rest.empty() || rest.front() != character) return false;
        rest.remove_prefix(1);
        return true;
    }

    char set;
    bool isNextShifted = false;
    std::string_view rest;
};

}  // namespace

bool PlainlySaysCode128(std::string_view fontString, std::string_view data) {
    if (data.starts_with('(') || data.find('~') != std::string_view::npos ||
        !fontString.ends_with(current::kStopLetters)) {
        return false;
    }
    fontString.remove_suffix(current::kStopLetters.size());
    if (fontString.size() % 3 != 0 || fontString.size() < 6) return false;
    const char* letters = fontString.data();
    const int start = ValueOf(letters);
    if (start < static_cast<int>(kCode128StartA) || start > static_cast<int>(kCode128StartC)) {
        return false;
    }
    PlainComparison comparison(start, data);
    const std::size_t last = fontString.size() / 3 - 1;
    std::size_t sum = static_cast<std::size_t>(start);
    for (std::size_t place = 1; place < last; ++place) {
        const int value = ValueOf(letters += 3);
        sum += place * static_cast<std::size_t>(value);
        if (!comparison.Take(value)) return false;
    }
    return comparison.IsAtEnd() &&
           static_cast<std::size_t>(ValueOf(letters + 3)) == sum % kCode128Modulus;
}

Bars ReadClassicCode128(std::string_view fontString) {
    if (!fontString.ends_with(static_cast<char>(classic::kStopByte))) return {};
    fontString.remove_suffix(1);
    Values values;
    for (const char byte : fontString) {
        values.push_back(kClassicValues[static_cast<unsigned char>(byte)]);
    }
    return BarsOf(values);
}

Bars ReadCode128(std::string_view fontString) {
    if (!fontString.ends_with(current::kStopLetters)) return {};
    fontString.remove_suffix(current::kStopLetters.size());
    if (fontString.size() % 3 != 0) return {};
    Values values;
    for (; !fontString.empty(); fontString.remove_prefix(3)) {
        const std::size_t place = PlaceOf(fontString.substr(0, 3));
        values.push_back(place < kValues.size() ? kValues[place] : kNoValue);
    }
    return BarsOf(values);
}

}  // namespace linewright::meaning
