#include <algorithm>
#include <optional>

#include "meaning/Bars.h"
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

}  // namespace

Bars ReadClassicRetail(std::string_view fontString) {
    return RetailReader(kClassicRetailAlphabet, fontString).Read();
}

Bars ReadRetail(std::string_view fontString) {
    return RetailReader(kCurrentRetailAlphabet, fontString).Read();
}

}  // namespace linewright::meaning
