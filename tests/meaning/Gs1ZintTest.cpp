#include <gtest/gtest.h>
#include <zint.h>

#include <array>
#include <map>
#include <memory>
#include <random>
#include <string>

#include "meaning/Gs1Elements.h"
#include "meaning/Gs1Identifiers.h"
#include "standards/CheckDigits.h"

// Random GS1 elements, right and wrong ones, of which libzint's verifier is the judge.

namespace linewright {

namespace {

using meaning::Gs1Identifiers;
using meaning::kGs1Identifiers;

/** Makes elements by the formats of kGs1Identifiers, with a fixed seed. */
class RandomElements {
  public:
    struct Element {
        std::string identifier;
        std::string value;
    };

    Element Next() {
        const Gs1Identifiers& row = kGs1Identifiers[Below(kGs1Identifiers.size())];
        Element element{IdentifierOf(row), ValueOf(row.format)};
        switch (Below(10)) {
            case 0: element.value.pop_back(); break;
            case 1: element.value += RandomCharacter(); break;
            case 2: element.value[Below(element.value.size())] = RandomCharacter(); break;
            case 3: element.value[Below(element.value.size())] = RandomDigit(); break;
            case 4: element.identifier.back() = RandomDigit(); break;
            default: break;
        }
        return element;
    }

  private:
    std::size_t Below(std::size_t limit) { return random() % limit; }
    char RandomDigit() { return static_cast<char>('0' + Below(10)); }
    /** Any of ASCII but space and what libzint takes for brackets and escapes. */
    char RandomCharacter() {
        const char character = static_cast<char>('!' + Below(94));
        return character == '[' || character == ']' || character == '\\' ? 'A' : character;
    }

    std::string IdentifierOf(const Gs1Identifiers& row) {
        const int first = std::stoi(std::string(row.first));
        const int last = std::stoi(std::string(row.last));
        std::string identifier =
            std::to_string(first + static_cast<int>(Below(static_cast<std::size_t>(last - first + 1))));
        identifier.insert(0, row.first.size() - identifier.size(), '0');
        if (identifier.back() > row.highestDigit) identifier.back() = row.highestDigit;
        return identifier;
    }

    std::string ValueOf(std::string_view format) {
        std::string value;
        while (!format.empty()) {
            const std::string_view component = format.substr(0, format.find(' '));
            format.remove_prefix(std::min(component.size() + 1, format.size()));
            if (component.starts_with('?') && Below(2) == 0) break;
            value += ComponentOf(component.substr(component.starts_with('?') ? 1 : 0));
        }
        return value;
    }

    std::string ComponentOf(std::string_view component) {
        const std::size_t number = component.find_first_of("0123456789");
        const bool isVariable = number > 1;
        std::size_t length = std::stoul(std::string(component.substr(number)));
        if (isVariable) length = 1 + Below(length);
        const char rule = component.back();
        std::string value;
        for (std::size_t i = 0; i < length; ++i) {
            const bool isDigit = component.front() == 'n' || Below(2) == 0;
            value += isDigit ? RandomDigit() : static_cast<char>('A' + Below(26));
        }
        if (rule == 'c') value.back() = Modulo10CheckDigit(value.substr(0, length - 1));
        if (rule == 'd' || rule == 'D') PutDate(value, rule == 'd');
        return value;
    }

    void PutDate(std::string& value, bool mayLackDay) {
        const std::size_t month = 1 + Below(12);
        const std::size_t day = mayLackDay ? Below(30) : 1 + Below(29);
        const std::size_t place = value.size() - 4;
        value.replace(place, 4, {static_cast<char>('0' + month / 10), static_cast<char>('0' + month % 10),
                                 static_cast<char>('0' + day / 10), static_cast<char>('0' + day % 10)});
    }

    std::mt19937 random{20260};
};

bool IsRightByZint(const RandomElements::Element& element) {
    const std::unique_ptr<zint_symbol, decltype(&ZBarcode_Delete)> symbol(ZBarcode_Create(),
                                                                          &ZBarcode_Delete);
    symbol->symbology = BARCODE_DATAMATRIX;
    symbol->input_mode = GS1_MODE;
    const std::string text = "[" + element.identifier + "]" + element.value;
    return ZBarcode_Encode(symbol.get(), reinterpret_cast<const unsigned char*>(text.data()),
                           static_cast<int>(text.size())) == 0;
}

TEST(Gs1Zint, AgreesAboutElements) {
    RandomElements random;
    std::map<std::string, std::array<int, 4>> counts;
    for (int i = 0; i < 10'000; ++i) {
        const RandomElements::Element element = random.Next();
        const std::string carried = element.identifier + element.value;
        const bool isRight = ElementWarnings(SplitSeparatedElements(carried)).empty();
        const bool isRightByZint = IsRightByZint(element);
        if (isRight != isRightByZint) printf("%s %s ours %d\n", element.identifier.c_str(), element.value.c_str(), isRight);
    }
}

}  // namespace

}  // namespace linewright
