#include "retail/RetailSymbol.h"

#include <array>
#include <initializer_list>
#include <iterator>

#include "standards/CheckDigits.h"
#include "standards/EanUpcParity.h"

namespace linewright {

namespace {

/** The letter of 0 in a number set; "a" and "c" are A and C with long bars. */
constexpr char FirstLetter(const RetailAlphabet& alphabet, char numberSet) {
    switch (numberSet) {
        case 'A': return alphabet.setA[0];
        case 'B': return alphabet.setB[0];
        case 'C': return alphabet.setC[0];
        case 'a': return alphabet.longSetA[0];
        default: return alphabet.longSetC[0];
    }
}

/** The letters of 0 in the number sets of some digits. Since letters are in the order of their
 *  digits, the digits' values added to these are the letters of the digits. */
constexpr Word FirstLetters(const RetailAlphabet& alphabet, std::string_view numberSets) {
    std::array<char, kWordSize> letters{};
    for (std::size_t place = 0; place < numberSets.size(); ++place)
        letters[place] = FirstLetter(alphabet, numberSets[place]);
    return MakeWord({letters.data(), numberSets.size()});
}

/** The same for each row of a table of number sets. */
template <std::size_t Rows>
constexpr std::array<Word, Rows> FirstLetters(const RetailAlphabet& alphabet,
                                              const std::array<std::string_view, Rows>& table) {
    std::array<Word, Rows> letters{};
    for (std::size_t row = 0; row < Rows; ++row) letters[row] = FirstLetters(alphabet, table[row]);
    return letters;
}

/** A word behind single letters. */
constexpr Word Joined(std::initializer_list<std::string_view> letters, Word word) {
    for (auto letter = std::rbegin(letters); letter != std::rend(letters); ++letter)
        word = word << 8 | MakeWord(*letter);
    return word;
}

/** The guard and the letters of 0 in the number sets of UPC-E's six digits, for each check digit.
 */
constexpr std::array<Word, 10> UpcEFirstLetters(const RetailAlphabet& alphabet, char numberSystem) {
    std::array<Word, 10> letters{};
    for (std::size_t check = 0; check < letters.size(); ++check) {
        const auto sets = UpcENumberSets(numberSystem, static_cast<char>('0' + check));
        letters[check] =
            Joined({alphabet.guard}, FirstLetters(alphabet, {sets.data(), sets.size()}));
    }
    return letters;
}

constexpr std::size_t ValueOf(char digit) {
    return static_cast<std::size_t>(digit - '0');
}

template <std::size_t Count>
Word Values(const char* digits) {
    return DigitValues(LoadWord<Count>(digits));
}

/** The last `Count` digits of a number of `Size`, and its check digit. */
template <std::size_t Size, std::size_t Count>
Word ValuesWithCheckDigit(std::string_view number) {
    const Word checkValue = ValueOf(Modulo10CheckDigit({number.data(), Size}));
    return Values<Count>(number.data() + Size - Count) | checkValue << 8 * Count;
}

/** The letter of a digit beside the symbol. */
template <const RetailAlphabet& kAlphabet>
Word Outside(std::size_t value) {
    return static_cast<unsigned char>(kAlphabet.outside[value]);
}

void Append(std::string_view letters, LetterWriter& symbol) {
    for (const char letter : letters) symbol.Append(letter);
}

template <const RetailAlphabet& kAlphabet>
void AppendAddOn(std::string_view addOn, LetterWriter& symbol) {
    if (addOn.empty()) return;
    const std::string_view numberSets = AddOnNumberSets(addOn);
    for (std::size_t place = 0; place < addOn.size(); ++place) {
        Append(place == 0 ? kAlphabet.addOnStart : kAlphabet.addOnDelineator, symbol);
        const auto& letters = numberSets[place] == 'A' ? kAlphabet.addOnSetA : kAlphabet.addOnSetB;
        symbol.Append(letters[ValueOf(addOn[place])]);
    }
}

}  // namespace

// A symbol is written in words: the letters that do not depend on its digits and those of 0, to
// which the values of the digits are added in their places.

template <const RetailAlphabet& kAlphabet>
void AppendEan13(std::string_view number, std::string_view addOn, TextArea& symbolText) {
    // The first digit has no bars: it chooses the number sets of the left half.
    static constexpr auto kLeft = [] {
        std::array<Word, 10> words = FirstLetters(kAlphabet, kEan13Parity);
        for (std::size_t first = 0; first < words.size(); ++first)
            words[first] =
                Joined({kAlphabet.outside.substr(first, 1), kAlphabet.guard}, words[first]);
        return words;
    }();
    constexpr Word kRight = Joined({kAlphabet.centreGuard}, FirstLetters(kAlphabet, "CCCCCC")) |
                            MakeWord(kAlphabet.guard) << 56;

    LetterWriter symbol(symbolText);
    symbol.Append(kLeft[ValueOf(number[0])] + (Values<6>(number.data() + 1) << 16), 8);
    symbol.Append(kRight + (ValuesWithCheckDigit<12, 5>(number) << 8), 8);
    if (addOn.empty()) return;
    Append(kAlphabet.ean13AddOnGap, symbol);
    AppendAddOn<kAlphabet>(addOn, symbol);
}

template <const RetailAlphabet& kAlphabet>
void AppendEan8(std::string_view number, TextArea& symbolText) {
    constexpr Word kLeft = Joined({kAlphabet.guard}, FirstLetters(kAlphabet, "AAAA"));
    constexpr Word kRight = Joined({kAlphabet.centreGuard}, FirstLetters(kAlphabet, "CCCC")) |
                            MakeWord(kAlphabet.guard) << 40;

    LetterWriter symbol(symbolText);
    symbol.Append(kLeft + (Values<4>(number.data()) << 8), 5);
    symbol.Append(kRight + (ValuesWithCheckDigit<7, 3>(number) << 8), 6);
}

template <const RetailAlphabet& kAlphabet>
void AppendUpcA(std::string_view number, std::string_view addOn, std::string_view rightGuard,
                TextArea& symbolText) {
    constexpr Word kLeft = Joined({kAlphabet.guard}, FirstLetters(kAlphabet, "aAAAAA"));
    constexpr Word kRight = Joined({kAlphabet.centreGuard}, FirstLetters(kAlphabet, "CCCCCc"));
    const Word right = ValuesWithCheckDigit<11, 5>(number);

    LetterWriter symbol(symbolText);
    symbol.Append(kAlphabet.outside[ValueOf(number[0])]);
    symbol.Append(kLeft + (Values<6>(number.data()) << 8), 7);
    symbol.Append(kRight + (right << 8), 7);
    Append(rightGuard, symbol);
    symbol.Append(kAlphabet.outside[right >> 40]);
    AppendAddOn<kAlphabet>(addOn, symbol);
}

template <const RetailAlphabet& kAlphabet>
void AppendUpcE(const UpcEDigits& digits, std::string_view addOn, TextArea& symbolText) {
    static constexpr std::array kSix{UpcEFirstLetters(kAlphabet, '0'),
                                     UpcEFirstLetters(kAlphabet, '1')};
    const std::size_t checkValue = ValueOf(digits.checkDigit);
    const Word six = kSix[digits.parityOf == '1'][checkValue] + (Values<6>(digits.six.data()) << 8);

    LetterWriter symbol(symbolText);
    symbol.Append(Outside<kAlphabet>(ValueOf(digits.numberSystem)) | six << 8, 8);
    symbol.Append(MakeWord(kAlphabet.upcERightGuard) | Outside<kAlphabet>(checkValue) << 8, 2);
    AppendAddOn<kAlphabet>(addOn, symbol);
}

template void AppendEan13<kClassicRetailAlphabet>(std::string_view, std::string_view, TextArea&);
template void AppendEan13<kCurrentRetailAlphabet>(std::string_view, std::string_view, TextArea&);
template void AppendEan8<kCurrentRetailAlphabet>(std::string_view, TextArea&);
template void AppendUpcA<kClassicRetailAlphabet>(std::string_view, std::string_view,
                                                 std::string_view, TextArea&);
template void AppendUpcA<kCurrentRetailAlphabet>(std::string_view, std::string_view,
                                                 std::string_view, TextArea&);
template void AppendUpcE<kClassicRetailAlphabet>(const UpcEDigits&, std::string_view, TextArea&);
template void AppendUpcE<kCurrentRetailAlphabet>(const UpcEDigits&, std::string_view, TextArea&);

}  // namespace linewright
