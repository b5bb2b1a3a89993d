#include "classic/Code128.h"

#include "classic/FontLetters.h"
#include "core/CharClasses.h"
#include "core/FixedText.h"
#include "core/Status.h"

namespace linewright {

namespace {

constexpr int kInvalid = -1;
/** The modulo-103 sum, kept in 16 bits: long data wraps it. */
class CheckSum {
  public:
    explicit CheckSum(int startValue) : sum(static_cast<int16>(startValue)) {}
    void Add(int value) { sum = static_cast<int16>(sum + value * ++position); }
    uint8 Byte() const { return classic::CheckByte(sum % 103); }

  private:
    int16 sum;
    int position = 0;
};

constexpr int ValueInSetA(uint8 byte) {
    if (byte < 32) return byte + 64;
    return byte <= 95 || (byte >= 128 && byte <= 134) ? byte - 32 : kInvalid;
}

constexpr int ValueInSetB(uint8 byte) {
    return byte >= 32 && byte <= 134 ? byte - 32 : kInvalid;
}

/** Sets A and B write each character as itself, but for space and apostrophe. */
template <int (*ValueOf)(uint8)>
bool TranslateCharacters(std::string_view data, CheckSum& sum, TextArea& out) {
    for (const char character : data) {
        const auto byte = static_cast<uint8>(character);
        const int value = ValueOf(byte);
        if (value == kInvalid) return false;
        sum.Add(value);
        out.Append(static_cast<char>(classic::CharacterByte(byte)));
    }
    return true;
}

bool TranslatePairs(std::string_view data, CheckSum& sum, TextArea& out) {
    if (data.size() >= kMaxPStringLength || !AreDigits(data)) return false;
    std::size_t position = 0;
    const auto nextDigit = [&] { return data[position++] - '0'; };
    bool padded = data.size() % 2 == 1;
    while (position < data.size()) {
        const int tens = padded ? 0 : nextDigit();
        padded = false;
        const int pair = 10 * tens + nextDigit();
        sum.Add(pair);
        out.Append(static_cast<char>(classic::PairByte(pair)));
    }
    return true;
}

struct CodeSet {
    int startValue;
    unsigned char startByte;
    std::string_view marker;
    bool (*translate)(std::string_view data, CheckSum& sum, TextArea& out);
};

constexpr CodeSet kSetA{103, classic::kStartBytes[0], "***Bad Code 128 A***",
                        TranslateCharacters<ValueInSetA>};
constexpr CodeSet kSetB{104, classic::kStartBytes[1], "***Bad Code 128 B***",
                        TranslateCharacters<ValueInSetB>};
constexpr CodeSet kSetC{105, classic::kStartBytes[2], "***Bad Code 128 C***", TranslatePairs};

bool AppendDataAndCheck(const CodeSet& set, std::string_view data, TextArea& out) {
    CheckSum sum(set.startValue);
    if (!set.translate(data, sum, out)) return false;
    out.Append(static_cast<char>(sum.Byte()));
    return true;
}

int16 Encode(const CodeSet& set, DataBlock data) {
    FixedText<1 + kMaxPStringLength + 2> symbol;
    symbol.Append(static_cast<char>(set.startByte));
    if (data.length > kMaxPStringLength || !AppendDataAndCheck(set, data.View(), symbol))
        return FinishWith(data, set.marker, kBadData);
    symbol.Append(static_cast<char>(classic::kStopByte));
    const auto blockSize = static_cast<uint32>(symbol.View().size() + 2);
    return ReplaceData(data, symbol.View(), blockSize) ? kEncoded : kInternalError;
}

int32 Translate(const CodeSet& set, PString& string) {
    FixedText<kMaxPStringLength + 1> translated;
    if (!AppendDataAndCheck(set, string.View(), translated)) return kBadData;
    SetPString(string, translated.View());
    return 0;
}

}  // namespace

int16 EncodeCode128A(DataBlock data) {
    return Encode(kSetA, data);
}
int16 EncodeCode128B(DataBlock data) {
    return Encode(kSetB, data);
}
int16 EncodeCode128C(DataBlock data) {
    return Encode(kSetC, data);
}

int32 TranslateCode128A(PString& string) {
    return Translate(kSetA, string);
}
int32 TranslateCode128B(PString& string) {
    return Translate(kSetB, string);
}
int32 TranslateCode128C(PString& string) {
    return Translate(kSetC, string);
}

}  // namespace linewright
