#include <gtest/gtest.h>

#include "core/FixedText.h"
#include "current/Ean13.h"
#include "current/Ean8.h"
#include "current/UpcA.h"
#include "current/UpcE.h"
#include "tests/ZintSymbol.h"
#include "tests/current/Elements.h"
#include "tests/current/RandomText.h"

// Symbols for the EAN/UPC font against libzint's, module by module.

namespace linewright {

namespace {

constexpr int kRounds = 2000;
constexpr std::string_view kDigitCharacters = "0123456789";

/** A symbol and its add-on, each without light modules around it. */
struct Modules {
    std::string main;
    std::string addOn;
    bool operator==(const Modules&) const = default;
};

void PrintTo(const Modules& modules, std::ostream* stream) {
    *stream << modules.main << " + " << modules.addOn;
}

std::string Trimmed(const std::string& modules) {
    const auto first = modules.find('1');
    if (first == std::string::npos) return "";
    return modules.substr(first, modules.rfind('1') - first + 1);
}

Modules FontModules(std::string_view text) {
    // An add-on is all that follows "+", which nothing else uses.
    const auto plus = std::min(text.find('+'), text.size());
    return {Trimmed(EanUpcFontModules(text.substr(0, plus))),
            Trimmed(EanUpcFontModules(text.substr(plus)))};
}

Modules ZintSymbol(int symbology, const std::string& data, std::size_t mainModules) {
    const std::string modules = Trimmed(ZintModules(symbology, data));
    return {modules.substr(0, mainModules), Trimmed(modules.substr(mainModules))};
}

/** None, two or five digits. */
std::string RandomAddOn(std::mt19937& random) {
    constexpr std::size_t kLengths[] = {0, 2, 5};
    const std::size_t length = kLengths[random() % 3];
    return RandomText(random, kDigitCharacters, length, length);
}

std::string Joined(std::initializer_list<std::string_view> pieces) {
    std::string text;
    for (const std::string_view piece : pieces) text += piece;
    return text;
}

std::string WithAddOn(const std::string& main, const std::string& addOn) {
    return addOn.empty() ? main : Joined({main, "+", addOn});
}

template <std::size_t Capacity>
Modules Built(int16 (*build)(std::string_view data, TextArea& symbol), const std::string& data) {
    FixedText<Capacity> symbol;
    EXPECT_EQ(build(data, symbol), kEncoded);
    return FontModules(symbol.View());
}

TEST(EanUpcZint, Ean13) {
    std::mt19937 random(13);
    for (int round = 0; round < kRounds; ++round) {
        const std::string main = RandomText(random, kDigitCharacters, 12, 12);
        const std::string addOn = RandomAddOn(random);
        const std::string checkDigit = round % 2 == 0 ? "" : "0";  // not looked at
        ASSERT_EQ(Built<kLongestEan13>(BuildEan13, Joined({main, checkDigit, addOn})),
                  ZintSymbol(BARCODE_EANX, WithAddOn(main, addOn), 95))
            << main << '+' << addOn;
    }
}

TEST(EanUpcZint, Ean8) {
    std::mt19937 random(8);
    for (int round = 0; round < kRounds; ++round) {
        const std::string data = RandomText(random, kDigitCharacters, 7, 7);
        ASSERT_EQ(Built<kLongestEan8>(BuildEan8, data), ZintSymbol(BARCODE_EANX, data, 67)) << data;
    }
}

TEST(EanUpcZint, UpcA) {
    std::mt19937 random(12);
    for (int round = 0; round < kRounds; ++round) {
        const std::string main = RandomText(random, kDigitCharacters, 11, 11);
        const std::string addOn = RandomAddOn(random);
        const std::string checkDigit = round % 2 == 0 ? "" : "0";
        ASSERT_EQ(Built<kLongestUpcA>(BuildUpcA, Joined({main, checkDigit, addOn})),
                  ZintSymbol(BARCODE_UPCA, WithAddOn(main, addOn), 95))
            << main << '+' << addOn;
    }
}

/** Whether six digits are those that zero suppression gives: of several that stand for the same
 *  number there is one. */
bool IsCanonical(const std::string& six) {
    if (six[5] == '3') return six[2] >= '3';
    if (six[5] == '4') return six[3] != '0';
    return six[5] < '3' || six[4] != '0';
}

std::string ExpandToUpcA(const std::string& seven) {
    const std::string x = seven.substr(1);
    std::string ten = x.substr(0, 5) + "0000" + x[5];
    if (x[5] <= '2') ten = x.substr(0, 2) + x[5] + "0000" + x.substr(2, 3);
    if (x[5] == '3') ten = x.substr(0, 3) + "00000" + x.substr(3, 2);
    if (x[5] == '4') ten = x.substr(0, 4) + "00000" + x[4];
    return seven[0] + ten;
}

TEST(EanUpcZint, UpcE) {
    std::mt19937 random(6);
    for (int round = 0; round < kRounds;) {
        const std::string six = RandomText(random, kDigitCharacters, 6, 6);
        if (!IsCanonical(six)) continue;
        const std::string seven = RandomText(random, "01", 1, 1) + six;
        const Modules expected = ZintSymbol(BARCODE_UPCE, seven, 51);
        ASSERT_EQ(Built<kLongestUpcA>(BuildUpcE, seven), expected) << seven;
        ASSERT_EQ(Built<kLongestUpcA>(BuildUpcE, ExpandToUpcA(seven)), expected) << seven;

        const std::string addOn = RandomAddOn(random);
        ASSERT_EQ(Built<kLongestUpcA>(BuildUpcE, ExpandToUpcA(seven) + addOn),
                  ZintSymbol(BARCODE_UPCE, WithAddOn(seven, addOn), 51))
            << seven << '+' << addOn;
        ++round;
    }
}

TEST(EanUpcZint, UpcEWithoutSuppressibleZerosIsUpcAWithAnotherRightGuard) {
    std::mt19937 random(11);
    for (int round = 0; round < kRounds; ++round) {
        // No zero behind the number system: none can be suppressed.
        const std::string data =
            RandomText(random, kDigitCharacters, 1, 1) + RandomText(random, "123456789", 10, 10);
        Modules expected = ZintSymbol(BARCODE_UPCA, data, 95);
        expected.main = expected.main.substr(0, 92) + "010101";
        ASSERT_EQ(Built<kLongestUpcA>(BuildUpcE, data), expected) << data;
    }
}

}  // namespace

}  // namespace linewright
