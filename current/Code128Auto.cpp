#include "current/Code128Auto.h"

#include <array>
#include <bit>

#include "current/Code128PreParse.h"
#include "current/FontLetters.h"
#include "current/Front.h"
#include "standards/Code128Patterns.h"

namespace linewright {

namespace {

constexpr FrontRule kFront{
    .length = AtMost(255),
    .characters = kEveryByte,
    .build = [](std::string_view text, const EncoderArguments&, TextArea& symbol) {
        return BuildCode128Auto(text, HasEscapes(text), symbol);
    }};

constexpr std::size_t kCodeC = 99;
constexpr std::size_t kCodeB = 100;
constexpr std::size_t kCodeA = 101;
constexpr std::size_t kFnc1 = 102;

constexpr uint8 kDelete = 127;

constexpr std::size_t kLettersPerCharacter = 3;

/** The letters of each value. */
constexpr auto kLetters = [] {
    std::array<Word, kCode128Widths.size()> letters{};
    for (std::size_t value = 0; value < letters.size(); ++value) {
        const std::string_view widths = kCode128Widths[value];
        const char text[kLettersPerCharacter]{current::LetterOf(widths[0], widths[1]),
                                              current::LetterOf(widths[2], widths[3]),
                                              current::LetterOf(widths[4], widths[5])};
        letters[value] = MakeWord({text, kLettersPerCharacter});
    }
    return letters;
}();
constexpr Word kStopLetters = MakeWord(current::kStopLetters);

/** Which places hold digits, a bit each from the lowest on, of a text that has no more places than
 *  there are bits. */
std::uint64_t DigitPlaces(std::string_view text) {
    std::uint64_t digits = 0;
    for (std::size_t place = 0; place < text.size(); place += kWordSize)
        digits |= DigitMask(LoadWord(text.substr(place))) << place;
    return digits;
}

constexpr bool IsSetBMarker(uint8 byte) {
    return IsMarkerByte(byte) && byte < kFnc1Byte;
}

/** Bytes that set A has no character for give values that the table does not have, or those of
 *  other characters from 192 on. */
constexpr std::size_t ValueInSetA(uint8 byte) {
    return byte > ' ' && byte < 128 ? byte - 32u : (byte + 64u) % 256;
}

/** Writes one symbol, character by character. */
class SymbolWriter {
  public:
    SymbolWriter(std::string_view symbolData, TextArea& symbolText)
        : data(symbolData),
          symbol(symbolText),
          digitPlaces(data.size() <= kBits ? DigitPlaces(data) : 0) {}

    int16 Write() {
        WriteStart();
        while (position < data.size()) WriteNext();
        AppendLetters(sum % kCode128Modulus);
        symbol.Append(kStopLetters, current::kStopLetters.size());
        return isComplete ? kEncoded : kInternalError;
    }

  private:
    enum class Set { kNone, kA, kB, kC };
    static constexpr std::size_t kBits = 64;

    uint8 ByteAt(std::size_t place) const {
        return place < data.size() ? static_cast<uint8>(data[place]) : 0;
    }
    /** How many digits there are from here on. */
    std::size_t CountDigits() const {
        if (data.size() <= kBits)
            return static_cast<std::size_t>(std::countr_one(digitPlaces >> position));
        std::size_t count = 0;
        while (IsDigit(static_cast<char>(ByteAt(position + count)))) ++count;
        return count;
    }

    /** Where from here on four digits begin, or the text ends; here where that is not known. */
    std::size_t NextPairs() const {
        if (data.size() > kBits) return position;
        const std::uint64_t four =
            digitPlaces & digitPlaces >> 1 & digitPlaces >> 2 & digitPlaces >> 3;
        const std::uint64_t ahead = position < kBits ? four >> position : 0;
        return ahead == 0 ? data.size()
                          : position + static_cast<std::size_t>(std::countr_zero(ahead));
    }

    void WriteStart() {
        const uint8 first = ByteAt(0);
        if (CountDigits() >= 4 || first == kFnc1Byte || first >= 212) {
            Start(Set::kC, kCode128StartC);
        } else if (first < ' ') {
            Start(Set::kA, kCode128StartA);
        } else if (first < kDelete || first == 197) {
            Start(Set::kB, kCode128StartB);
        }
    }
    void Start(Set startSet, std::size_t value) {
        set = startSet;
        sum = value;
        AppendLetters(value);
    }

    void WriteNext() {
        const std::size_t digits = CountDigits();
        const uint8 byte = ByteAt(position);
        if (digits >= 4 || (set == Set::kC && digits >= 2)) {
            WritePairs(digits);
        } else if (IsSetBMarker(byte)) {
            if (set == Set::kC) Switch(Set::kB, kCodeB);
            Put(byte - 100u);
            ++position;
        } else if (IsMarkerByte(byte)) {
            Put(kFnc1);
            ++position;
        } else {
            WriteCharacter(byte);
            ++position;
            if (set == Set::kB) WriteSetB();
        }
    }

    /** In set B, writes its characters as far as the next four digits. */
    void WriteSetB() {
        for (const std::size_t end = NextPairs(); position < end; ++position) {
            const uint8 byte = ByteAt(position);
            if (byte < ' ' || byte >= kDelete) return;
            Put(byte - 32u);
        }
    }

    /** Writes a run of digits but for one that is left over, which comes first or, in set C, last.
     */
    void WritePairs(std::size_t digits) {
        if (set != Set::kC) {
            if (digits % 2 == 1) Put(ByteAt(position++) - 32u);
            Switch(Set::kC, kCodeC);
        }
        for (const std::size_t end = position + digits / 2 * 2; position < end; position += 2)
            Put(10u * (ByteAt(position) - '0') + (ByteAt(position + 1) - '0'));
    }

    void WriteCharacter(uint8 byte) {
        const bool isInSetA = set == Set::kA && byte > ' ' && byte < '`';
        if (byte < ' ' || byte > kDelete || isInSetA) {
            if (set != Set::kA) Switch(Set::kA, kCodeA);
            Put(ValueInSetA(byte));
        } else if (byte != kDelete) {
            if (set != Set::kB) Switch(Set::kB, kCodeB);
            Put(byte - 32u);
        }
    }

    void Switch(Set newSet, std::size_t code) {
        Put(code);
        set = newSet;
    }

    void Put(std::size_t value) {
        if (value >= kCode128Widths.size()) {
            isComplete = false;
            return;
        }
        sum += value * ++weight;
        AppendLetters(value);
    }

    void AppendLetters(std::size_t value) { symbol.Append(kLetters[value], kLettersPerCharacter); }

    std::string_view data;
    LetterWriter symbol;
    std::uint64_t digitPlaces;
    std::size_t position = 0;
    Set set = Set::kNone;
    std::size_t sum = 0;
    std::size_t weight = 0;
    bool isComplete = true;
};

}  // namespace

int16 BuildCode128Auto(std::string_view data, bool replaceEscapes, TextArea& symbol) {
    if (const int16 status = TextStatus(data)) return status;
    if (data.size() > kMaxBuilderText) return kInternalError;

    FixedText<kMaxBuilderText> parsed;
    if (replaceEscapes) Code128PreParse(data, parsed);
    return SymbolWriter(replaceEscapes ? parsed.View() : data, symbol).Write();
}

int32 EncodeCode128Auto(const EncoderArguments& arguments) {
    FixedText<kCode128AutoCapacity> symbol;
    return EncodeByRule(kFront, arguments, symbol);
}

}  // namespace linewright
