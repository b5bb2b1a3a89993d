#include "retail/RetailSymbol.h"

#include "standards/CheckDigits.h"
#include "standards/EanUpcParity.h"

namespace linewright {

namespace {

/** "a" and "c" are the number sets A and C with long bars. */
constexpr std::string_view kEan8NumberSets = "AAAACCCC";
constexpr std::string_view kUpcANumberSets = "aAAAAACCCCCc";

constexpr char LetterOf(std::string_view letters, char digit) {
    return letters[static_cast<std::size_t>(digit - '0')];
}

constexpr std::string_view LettersOf(const RetailAlphabet& alphabet, char numberSet) {
    switch (numberSet) {
        case 'A': return alphabet.setA;
        case 'B': return alphabet.setB;
        case 'C': return alphabet.setC;
        case 'a': return alphabet.longSetA;
        default: return alphabet.longSetC;
    }
}

/** The walk over the digits: each in its number set, with a guard at both ends, and the centre
 *  guard in front of the right half, which begins with set C. */
void AppendBars(const RetailAlphabet& alphabet, std::string_view digits,
                std::string_view numberSets, std::string_view rightGuard, TextArea& symbol) {
    const std::size_t centre = numberSets.find('C');
    symbol.Append(alphabet.guard);
    for (std::size_t place = 0; place < digits.size(); ++place) {
        if (place == centre) symbol.Append(alphabet.centreGuard);
        symbol.Append(LetterOf(LettersOf(alphabet, numberSets[place]), digits[place]));
    }
    symbol.Append(rightGuard);
}

void AppendAddOn(const RetailAlphabet& alphabet, std::string_view addOn, TextArea& symbol) {
    if (addOn.empty()) return;
    const std::string_view numberSets = AddOnNumberSets(addOn);
    for (std::size_t place = 0; place < addOn.size(); ++place) {
        symbol.Append(place == 0 ? alphabet.addOnStart : alphabet.addOnDelineator);
        symbol.Append(LetterOf(numberSets[place] == 'A' ? alphabet.addOnSetA : alphabet.addOnSetB,
                               addOn[place]));
    }
}

/** A number with its check digit. */
class Completed {
  public:
    explicit Completed(std::string_view number) {
        digits.Append(number);
        digits.Append(Modulo10CheckDigit(number));
    }
    std::string_view View() const { return digits.View(); }

  private:
    FixedText<13> digits;
};

}  // namespace

void AppendEan13(const RetailAlphabet& alphabet, std::string_view number, std::string_view addOn,
                 TextArea& symbol) {
    // The first digit has no bars: it chooses the number sets of the left half.
    FixedText<12> numberSets;
    numberSets.Append(kEan13Parity[static_cast<std::size_t>(number[0] - '0')]);
    numberSets.Append("CCCCCC");

    symbol.Append(LetterOf(alphabet.outside, number[0]));
    AppendBars(alphabet, Completed(number).View().substr(1), numberSets.View(), alphabet.guard,
               symbol);
    if (!addOn.empty()) symbol.Append(alphabet.ean13AddOnGap);
    AppendAddOn(alphabet, addOn, symbol);
}

void AppendEan8(const RetailAlphabet& alphabet, std::string_view number, TextArea& symbol) {
    AppendBars(alphabet, Completed(number).View(), kEan8NumberSets, alphabet.guard, symbol);
}

void AppendUpcA(const RetailAlphabet& alphabet, std::string_view number, std::string_view addOn,
                std::string_view rightGuard, TextArea& symbol) {
    const Completed digits(number);
    symbol.Append(LetterOf(alphabet.outside, digits.View().front()));
    AppendBars(alphabet, digits.View(), kUpcANumberSets, rightGuard, symbol);
    symbol.Append(LetterOf(alphabet.outside, digits.View().back()));
    AppendAddOn(alphabet, addOn, symbol);
}

void AppendUpcE(const RetailAlphabet& alphabet, const UpcEDigits& digits, std::string_view addOn,
                TextArea& symbol) {
    symbol.Append(LetterOf(alphabet.outside, digits.numberSystem));
    AppendBars(alphabet, digits.six, digits.numberSets, alphabet.upcERightGuard, symbol);
    symbol.Append(LetterOf(alphabet.outside, digits.checkDigit));
    AppendAddOn(alphabet, addOn, symbol);
}

}  // namespace linewright
