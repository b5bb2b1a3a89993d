#include "classic/Interleaved2of5.h"

#include "classic/FontLetters.h"
#include "core/CharClasses.h"
#include "core/FixedText.h"
#include "core/Status.h"
#include "standards/CheckDigits.h"
#include "standards/Interleaved2of5Patterns.h"

namespace linewright {

namespace {

constexpr std::string_view kMarker = "***Bad Int. 2 of 5***";

/** With what makes it even. */
constexpr std::size_t kMostDigits = kMaxPStringLength + 1;
constexpr std::size_t kLettersPerPair = 5;
using ResultText = FixedText<1 + kMostDigits / 2 * kLettersPerPair + 1>;

/** Modulo 10 with the weights anchored at the leftmost digit, which weighs 3. */
char CheckDigit(std::string_view digits) {
    const bool isOdd = digits.size() % 2 == 1;
    return Modulo10Complement(AlternatingSum(digits, isOdd ? 3 : 1, isOdd ? 1 : 3));
}

void AppendDigits(std::string_view data, bool checkDigit, TextArea& out) {
    const bool isOdd = data.size() % 2 == 1;
    if (isOdd && !checkDigit) out.Append('0');
    out.Append(data);
    if (!checkDigit || data.empty()) return;
    if (!isOdd) out.Append('0');
    out.Append(CheckDigit(data));
}

/** The text under the bars: as the digits in them, but for the check digit and its zero. */
void AppendText(std::string_view data, bool checkDigit, TextArea& out) {
    if (!checkDigit && data.size() % 2 == 1) out.Append('0');
    out.Append(data);
}

void AppendPair(char barDigit, char spaceDigit, TextArea& out) {
    const std::string_view bars =
        kInterleaved2of5Patterns[static_cast<std::size_t>(barDigit - '0')];
    const std::string_view spaces =
        kInterleaved2of5Patterns[static_cast<std::size_t>(spaceDigit - '0')];
    for (std::size_t element = 0; element < kLettersPerPair; ++element)
        out.Append(classic::kPairLetters[2u * (bars[element] == 'w') + (spaces[element] == 'w')]);
}

void AppendSymbol(std::string_view data, bool checkDigit, TextArea& out) {
    FixedText<kMostDigits> digits;
    AppendDigits(data, checkDigit, digits);
    const std::string_view pairs = digits.View();
    out.Append(classic::kStart);
    for (std::size_t place = 0; place < pairs.size(); place += 2)
        AppendPair(pairs[place], pairs[place + 1], out);
    out.Append(classic::kStop);
}

bool Translate(std::string_view data, bool checkDigit, bool textOnly, TextArea& out) {
    if (data.size() > kMaxPStringLength || !AreDigits(data)) return false;
    (textOnly ? AppendText : AppendSymbol)(data, checkDigit, out);
    return true;
}

}  // namespace

int16 EncodeInterleaved2of5Classic(DataBlock data, bool checkDigit, bool textOnly) {
    ResultText result;
    if (!Translate(data.View(), checkDigit, textOnly, result))
        return FinishWith(data, kMarker, kBadData);
    return FinishWith(data, result.View(), kEncoded);
}

int16 TranslateInterleaved2of5(PString& string, bool checkDigit, bool textOnly) {
    ResultText result;
    if (!Translate(string.View(), checkDigit, textOnly, result)) return kBadData;
    SetPString(string, result.View());
    return kEncoded;
}

}  // namespace linewright
