#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

#include "core/Word.h"
#include "meaning/Bars.h"
#include "meaning/PlainBars.h"
#include "retail/RetailAlphabet.h"
#include "standards/CheckDigits.h"
#include "standards/EanUpcParity.h"
#include "standards/UpcEZeroSuppression.h"

namespace linewright::meaning {

namespace {

/** Digits with the number sets that their bars are of. */
struct Digits {
    std::string digits{};
    std::string sets{};
};

Bars BarsOf(const std::string& number) {
    const std::string_view digits(number);
    const char check = Modulo10CheckDigit(digits.substr(0, digits.size() - 1));
    return {.symbol = check == digits.back() ? Symbol::kRead : Symbol::kWrongCheck, .text = number};
}

Bars UpcEOf(const Digits& six) {
    for (const char numberSystem : {'0', '1'}) {
        for (char check = '0'; check <= '9'; ++check) {
            const auto sets = UpcENumberSets(numberSystem, check);
            if (!std::equal(sets.begin(), sets.end(), six.sets.begin())) continue;
            const auto ten = ExpandUpcE(six.digits);
            std::string number{'0', numberSystem};
            number.append(ten.begin(), ten.end()).push_back(check);
            Bars bars = BarsOf(number);
            bars.upcEDigits = six.digits;
            return bars;
        }
    }
    return {};
}

/** EAN-13, of which the first digit is in the number sets of the left half, or EAN-8. */
Bars EanOf(const Digits& left, const std::string& right) {
    if (left.sets == "AAAA" && right.size() == 4) return BarsOf(left.digits + right);
    const auto parity = std::find(kEan13Parity.begin(), kEan13Parity.end(), left.sets);
    if (parity == kEan13Parity.end() || right.size() != 6) return {};
    const auto first = static_cast<char>('0' + (parity - kEan13Parity.begin()));
    return BarsOf(first + left.digits + right);
}

/** Reads from left to right. The digits beside the bars are for people. */
class RetailReader {
  public:
    RetailReader(const RetailAlphabet& letters, std::string_view fontString)
        : alphabet(letters), rest(fontString) {}

    Bars Read() {
        TakeDigit(alphabet.outside);
        if (!Take(alphabet.guard)) return {};
        Bars bars = ReadMain();
        TakeDigit(alphabet.outside);
        if (!rest.empty() && !ReadAddOn(bars.addOn)) return {};
        return bars;
    }

  private:
    bool Take(std::string_view mark) {
        if (!rest.starts_with(mark)) return false;
        rest.remove_prefix(mark.size());
        return true;
    }

    std::optional<char> TakeDigit(std::string_view set) {
        const std::size_t digit = rest.empty() ? std::string_view::npos : set.find(rest.front());
        if (digit == std::string_view::npos) return std::nullopt;
        rest.remove_prefix(1);
        return static_cast<char>('0' + digit);
    }

    std::string TakeDigits(std::string_view set) {
        std::string digits;
        while (const auto digit = TakeDigit(set)) digits += *digit;
        return digits;
    }

    bool TakeDigit(std::string_view setA, std::string_view setB, Digits& digits) {
        auto digit = TakeDigit(setA);
        digits.sets += digit ? 'A' : 'B';
        if (!digit) digit = TakeDigit(setB);
        if (digit) {
            digits.digits += *digit;
        } else {
            digits.sets.pop_back();
        }
        return digit.has_value();
    }

    Bars ReadMain() {
        if (const auto first = TakeDigit(alphabet.longSetA)) return ReadUpcA(*first);
        Digits left;
        while (TakeDigit(alphabet.setA, alphabet.setB, left)) continue;
        if (Take(alphabet.upcERightGuard)) return left.sets.size() == 6 ? UpcEOf(left) : Bars{};
        if (!Take(alphabet.centreGuard)) return {};
        const std::string right = TakeDigits(alphabet.setC);
        return Take(alphabet.guard) ? EanOf(left, right) : Bars{};
    }

    Bars ReadUpcA(char first) {
        const std::string left = TakeDigits(alphabet.setA);
        if (left.size() != 5 || !Take(alphabet.centreGuard)) return {};
        const std::string right = TakeDigits(alphabet.setC);
        const auto last = TakeDigit(alphabet.longSetC);
        if (right.size() != 5 || !last || !Take(alphabet.guard)) return {};
        return BarsOf(std::string{'0', first} + left + right + *last);
    }

    bool ReadAddOn(std::string& addOn) {
        Take(alphabet.ean13AddOnGap);
        if (!Take(alphabet.addOnStart)) return false;
        Digits digits;
        do {
            if (!TakeDigit(alphabet.addOnSetA, alphabet.addOnSetB, digits)) return false;
        } while (Take(alphabet.addOnDelineator));
        addOn = digits.digits;
        return rest.empty() && (addOn.size() == 2 || addOn.size() == 5) &&
               AddOnNumberSets(addOn) == digits.sets;
    }

    const RetailAlphabet& alphabet;
    std::string_view rest;
};

constexpr const RetailAlphabet& kLetters = kCurrentRetailAlphabet;

/** How far the letter of a digit lies behind the digit; letters follow one another as digits do. */
constexpr char ShiftOf(std::string_view set) {
    return static_cast<char>(set[0] - '0');
}

/** The same of each digit by its number set. */
template <class Sets>
constexpr std::array<char, 6> ShiftsOf(const Sets& sets) {
    std::array<char, 6> shifts{};
    for (std::size_t place = 0; place < shifts.size(); ++place) {
        shifts[place] = ShiftOf(sets[place] == 'A' ? kLetters.setA : kLetters.setB);
    }
    return shifts;
}

/** By byte, whether it is none of the letters of digits without bars. */
constexpr auto kNotOutside = [] {
    std::array<bool, 256> letters{};
    letters.fill(true);
    for (const char letter : kLetters.outside) letters[static_cast<unsigned char>(letter)] = false;
    return letters;
}();

constexpr Word kSixBytes = 0xFFFF'FFFF'FFFF;

constexpr auto kEan13Shifts = [] {
    std::array<Word, 10> shifts{};
    for (std::size_t first = 0; first < shifts.size(); ++first) {
        const auto six = ShiftsOf(kEan13Parity[first]);
        shifts[first] = MakeWord({six.data(), six.size()});
    }
    return shifts;
}();

/** Sets a font string, which is long enough, against the letters of digits, from left to right. */
class RetailComparison {
  public:
    explicit RetailComparison(std::string_view fontString) : rest(fontString.data()) {}

    void Take(std::string_view mark) { different |= *rest++ ^ mark[0]; }
    template <std::size_t Count>
    void Take(std::string_view set, const char* digits) {
        for (std::size_t i = 0; i < Count; ++i) different |= *rest++ ^ (digits[i] + ShiftOf(set));
    }
    void TakeHalf(const std::array<char, 6>& shifts, const char* digits) {
        for (std::size_t i = 0; i < 6; ++i) different |= *rest++ ^ (digits[i] + shifts[i]);
    }
    /** A digit for people, as the reader takes them. */
    void TakeOutside() { different |= kNotOutside[static_cast<unsigned char>(*rest++)] ? 1 : 0; }
    bool IsSame() const { return different == 0; }

  private:
    const char* rest;
    int different = 0;
};

/** Whether data is the digits of a number, and its check digit where it has one. */
template <std::size_t Length>
bool IsNumber(std::string_view data, char check) {
    unsigned other = 0;
    for (std::size_t i = 0; i < Length; ++i) {
        other |= static_cast<unsigned>(static_cast<unsigned char>(data[i] - '0') > 9);
    }
    return other == 0 &&
           (data.size() == Length || (data.size() == Length + 1 && data[Length] == check));
}

}  // namespace

/** Digits and letters as words of bytes, the first one lowest. */
bool PlainlySaysEan13(std::string_view fontString, std::string_view data) {
    if (fontString.size() != 16 || data.size() < 12 || data.size() > 13) return false;
    const Word firstEight = Load<Word>(data.data());
    const Word lastEight = Load<Word>(data.data() + 4);
    if (!linewright::AreDigits(firstEight) || !linewright::AreDigits(lastEight)) return false;
    const char check = Modulo10Complement(WeightedSum(DigitValues(firstEight), 1, 3) +
                                          WeightedSum(DigitValues(lastEight >> 32), 1, 3));
    if (data.size() == 13 && data[12] != check) return false;
    const auto first = static_cast<std::size_t>(data[0] - '0');
    const Word left = (firstEight >> 8 & kSixBytes) + kEan13Shifts[first];
    const Word right = (lastEight >> 24 | Word{static_cast<unsigned char>(check)} << 40) +
                       (EightTimes(static_cast<unsigned char>(ShiftOf(kLetters.setC))) & kSixBytes);
    const auto guard = static_cast<unsigned char>(kLetters.guard[0]);
    const auto centreGuard = static_cast<unsigned char>(kLetters.centreGuard[0]);
    return !kNotOutside[static_cast<unsigned char>(fontString[0])] && fontString[1] == guard &&
           (Load<Word>(fontString.data() + 2) & kSixBytes) == left &&
           Load<Word>(fontString.data() + 8) == (centreGuard | right << 8 | Word{guard} << 56);
}

bool PlainlySaysEan8(std::string_view fontString, std::string_view data) {
    if (fontString.size() != 11 || data.size() < 7) return false;
    const char check = Modulo10CheckDigit(data.substr(0, 7));
    if (!IsNumber<7>(data, check)) return false;
    RetailComparison bars(fontString);
    bars.Take(kLetters.guard);
    bars.Take<4>(kLetters.setA, &data[0]);
    bars.Take(kLetters.centreGuard);
    bars.Take<3>(kLetters.setC, &data[4]);
    bars.Take<1>(kLetters.setC, &check);
    bars.Take(kLetters.guard);
    return bars.IsSame();
}

bool PlainlySaysUpcA(std::string_view fontString, std::string_view data) {
    if (fontString.size() != 17 || data.size() < 11) return false;
    const char check = Modulo10CheckDigit(data.substr(0, 11));
    if (!IsNumber<11>(data, check)) return false;
    RetailComparison bars(fontString);
    bars.TakeOutside();
    bars.Take(kLetters.guard);
    bars.Take<1>(kLetters.longSetA, &data[0]);
    bars.Take<5>(kLetters.setA, &data[1]);
    bars.Take(kLetters.centreGuard);
    bars.Take<5>(kLetters.setC, &data[6]);
    bars.Take<1>(kLetters.longSetC, &check);
    bars.Take(kLetters.guard);
    bars.TakeOutside();
    return bars.IsSame();
}

bool PlainlySaysUpcE(std::string_view fontString, std::string_view data) {
    if (fontString.size() != 10 || data.size() < 7 || data[0] > '1' || data[6] < '0' ||
        data[6] > '9') {
        return false;
    }
    std::array<char, 11> number{data[0]};
    const auto ten = ExpandUpcE(data.substr(1, 6));
    std::copy(ten.begin(), ten.end(), number.begin() + 1);
    const char check = Modulo10CheckDigit({number.data(), number.size()});
    if (!IsNumber<7>(data, check)) return false;
    RetailComparison bars(fontString);
    bars.TakeOutside();
    bars.Take(kLetters.guard);
    bars.TakeHalf(ShiftsOf(UpcENumberSets(data[0], check)), &data[1]);
    bars.Take(kLetters.upcERightGuard);
    bars.TakeOutside();
    return bars.IsSame();
}

Bars ReadClassicRetail(std::string_view fontString) {
    return RetailReader(kClassicRetailAlphabet, fontString).Read();
}

Bars ReadRetail(std::string_view fontString) {
    return RetailReader(kCurrentRetailAlphabet, fontString).Read();
}

}  // namespace linewright::meaning
