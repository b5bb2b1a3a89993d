#include <gtest/gtest.h>

#include <initializer_list>
#include <random>
#include <string>

#include "current/Codabar.h"
#include "current/Code128Auto.h"
#include "current/Code39.h"
#include "current/FontLetters.h"
#include "current/Interleaved2of5.h"
#include "current/Msi.h"
#include "current/Postnet.h"
#include "current/UpcE.h"
#include "retail/RetailSymbol.h"
#include "standards/CheckDigits.h"
#include "standards/CodabarPatterns.h"
#include "standards/Code39Patterns.h"
#include "standards/EanUpcParity.h"
#include "standards/Interleaved2of5Patterns.h"
#include "standards/UpcEZeroSuppression.h"
#include "tests/Rounds.h"
#include "tests/current/RandomText.h"

// The encoders write letters from tables made at compile time, several at once. Here they are
// written one by one, from the published tables.

namespace linewright {

namespace {

constexpr std::string_view kDigitCharacters = "0123456789";
constexpr double kRatios[] = {2.0, 2.5, 3.0, 1.7};

/** Characters of a symbology, and now and then others. */
std::string RandomData(std::mt19937& random, std::string_view alphabet) {
    std::string text = RandomText(random, alphabet, 1, random() % 16 ? 20 : 600);
    if (random() % 4 == 0) text[random() % text.size()] = static_cast<char>(1 + random() % 255);
    return text;
}

std::string Joined(std::initializer_list<std::string_view> pieces) {
    std::string text;
    for (const std::string_view piece : pieces) text += piece;
    return text;
}

std::string_view PairLetters(double ratio) {
    return ratio == 3.0 ? "ACIK" : ratio == 2.5 ? "WXYZ" : "ABEF";
}

std::string Letters(std::string_view pattern, double ratio) {
    std::string letters;
    for (std::size_t bar = 0; bar < pattern.size(); bar += 2) {
        const bool isWideSpace = bar + 1 < pattern.size() && pattern[bar + 1] == 'w';
        letters += PairLetters(ratio)[2u * (pattern[bar] == 'w') + isWideSpace];
    }
    return letters;
}

std::string DigitsOf(std::string_view text) {
    std::string digits;
    for (const char character : text.substr(0, kMaxBuilderText))
        if (IsDigit(character)) digits += character;
    return digits;
}

/** What a builder writes. */
template <class Build>
std::string Built(Build build) {
    FixedText<kCode39Capacity> symbol;
    EXPECT_EQ(build(symbol), kEncoded);
    return std::string(symbol.View());
}

TEST(PlainWalk, Code39) {
    std::mt19937 random(39);
    for (int round = 0; round < Rounds(); ++round) {
        const std::string data = RandomData(random, kCode39Characters);
        const double ratio = kRatios[round % 4];
        const bool check = random() % 2;
        std::string expected = Letters(kCode39Patterns[kCode39StartStop], ratio);
        std::size_t sum = 0;
        for (const char character : data.substr(0, kMaxBuilderText)) {
            const bool isLower = character >= 'a' && character <= 'z';
            const auto value = Code39Value(isLower ? static_cast<char>(character - 32) : character);
            if (!value) continue;
            expected += Letters(kCode39Patterns[*value], ratio);
            sum += *value;
        }
        if (check) expected += Letters(kCode39Patterns[sum % 43], ratio);
        expected += Letters(kCode39Patterns[kCode39StartStop], ratio);
        ASSERT_EQ(Built([&](TextArea& symbol) {
                      return BuildCode39Current(data.c_str(), ratio, check, symbol);
                  }),
                  expected)
            << testing::PrintToString(data);
    }
}

TEST(PlainWalk, Codabar) {
    std::mt19937 random(20);
    for (int round = 0; round < Rounds(); ++round) {
        const std::string data = RandomData(random, "0123456789-$:/.+ABCDabcd");
        const double ratio = kRatios[round % 4];
        std::string expected;
        for (char character : Joined({"A", data.substr(0, kMaxBuilderText), "C"})) {
            if (character >= 'a' && character <= 'd') character = static_cast<char>(character - 32);
            if (const auto value = CodabarValue(character))
                expected += Letters(kCodabarPatterns[*value], ratio);
        }
        ASSERT_EQ(Built([&](TextArea& symbol) {
                      return BuildCodabarCurrent(data.c_str(), ratio, "A", "C", symbol);
                  }),
                  expected)
            << testing::PrintToString(data);
    }
}

TEST(PlainWalk, Interleaved2of5) {
    std::mt19937 random(25);
    for (int round = 0; round < Rounds(); ++round) {
        const std::string data = RandomData(random, kDigitCharacters);
        const double ratio = kRatios[round % 4];
        const bool check = random() % 2;
        std::string digits = DigitsOf(data);
        if (check) digits += Modulo10CheckDigit(digits);
        if (digits.size() % 2 == 1) digits.insert(0, 1, '0');
        std::string pattern;
        for (std::size_t place = 0; place < digits.size(); place += 2)
            for (std::size_t element = 0; element < 5; ++element)
                for (const char digit : {digits[place], digits[place + 1]})
                    pattern +=
                        kInterleaved2of5Patterns[static_cast<std::size_t>(digit - '0')][element];
        ASSERT_EQ(Built([&](TextArea& symbol) {
                      return BuildInterleaved2of5Current(data.c_str(), ratio, check, symbol);
                  }),
                  Joined({Letters("nnnn", ratio), Letters(pattern, ratio), Letters("wnn", ratio)}))
            << testing::PrintToString(data);
    }
}

TEST(PlainWalk, Msi) {
    std::mt19937 random(27);
    for (int round = 0; round < Rounds(); ++round) {
        const std::string data = RandomData(random, kDigitCharacters);
        const double ratio = kRatios[round % 4];
        const bool check = random() % 2;
        std::string digits = DigitsOf(data);
        if (digits.empty()) continue;
        if (check) digits += MsiModulo10CheckDigit(digits);
        std::string pattern = "wn";
        for (const char digit : digits)
            for (const int bit : {8, 4, 2, 1}) pattern += (digit - '0') & bit ? "wn" : "nw";
        ASSERT_EQ(Built([&](TextArea& symbol) {
                      return BuildMsiCurrent(data.c_str(), ratio, check, symbol);
                  }),
                  Letters(pattern + "nwnw", ratio))
            << testing::PrintToString(data);
    }
}

TEST(PlainWalk, Postnet) {
    std::mt19937 random(30);
    for (int round = 0; round < Rounds(); ++round) {
        const std::string data = RandomData(random, "0123456789- ");
        const bool check = random() % 2;
        std::string digits = DigitsOf(data);
        if (check) digits += PostnetCheckDigit(digits);
        std::string expected = "n";
        for (const char digit : digits) {
            const unsigned bars = current::PostnetBarsOf(digit - '0');
            expected += "jklm"[bars >> 3];
            expected += "jklm"[bars >> 1 & 3];
            expected += bars & 1 ? 'n' : 'o';
        }
        ASSERT_EQ(Built([&](TextArea& symbol) {
                      return BuildPostnetCurrent(data.c_str(), check, symbol);
                  }),
                  expected + "n")
            << testing::PrintToString(data);
    }
}

// EAN and UPC.

char LetterOf(const RetailAlphabet& alphabet, char numberSet, char digit) {
    const std::string_view letters = numberSet == 'A'   ? alphabet.setA
                                     : numberSet == 'B' ? alphabet.setB
                                     : numberSet == 'C' ? alphabet.setC
                                     : numberSet == 'a' ? alphabet.longSetA
                                     : numberSet == 'c' ? alphabet.longSetC
                                                        : alphabet.outside;
    return letters[static_cast<std::size_t>(digit - '0')];
}

/** Digits by their number sets, "o" for one beside the bars, and what stands for itself. */
std::string Walk(const RetailAlphabet& alphabet, std::string_view digits, std::string_view sets) {
    std::string text;
    for (const char set : sets) {
        if (set == '(') {
            text += alphabet.guard;
        } else if (set == '*') {
            text += alphabet.centreGuard;
        } else if (set == ')') {
            text += alphabet.upcERightGuard;
        } else {
            text += LetterOf(alphabet, set, digits[0]);
            digits.remove_prefix(1);
        }
    }
    return text;
}

std::string WalkAddOn(const RetailAlphabet& alphabet, std::string_view addOn) {
    std::string text;
    for (std::size_t place = 0; place < addOn.size(); ++place) {
        text += place == 0 ? alphabet.addOnStart : alphabet.addOnDelineator;
        const bool isA = AddOnNumberSets(addOn)[place] == 'A';
        text += (isA ? alphabet.addOnSetA
                     : alphabet.addOnSetB)[static_cast<std::size_t>(addOn[place] - '0')];
    }
    return text;
}

std::string Completed(const std::string& number) {
    return number + Modulo10CheckDigit(number);
}

template <const RetailAlphabet& kAlphabet>
void WalkRetail(int seed) {
    std::mt19937 random(static_cast<unsigned>(seed));
    const auto digits = [&](std::size_t count) {
        return RandomText(random, kDigitCharacters, count, count);
    };
    for (int round = 0; round < Rounds(); ++round) {
        constexpr std::size_t kAddOns[] = {0, 2, 5};
        const std::string addOn = digits(kAddOns[round % 3]);
        const std::string addOnText = WalkAddOn(kAlphabet, addOn);

        const std::string twelve = digits(12);
        const auto left = std::string(kEan13Parity[static_cast<std::size_t>(twelve[0] - '0')]);
        FixedText<kLongestEan13> ean13;
        AppendEan13<kAlphabet>(twelve, addOn, ean13);
        ASSERT_EQ(ean13.View(),
                  Walk(kAlphabet, Completed(twelve), Joined({"o(", left, "*CCCCCC("})) +
                      std::string(addOn.empty() ? "" : kAlphabet.ean13AddOnGap) + addOnText)
            << twelve;

        const std::string eleven = digits(11);
        const std::string completed = Completed(eleven);
        const std::string upcADigits =
            Joined({eleven.substr(0, 1), completed, completed.substr(11)});
        for (const char guard : {'(', ')'}) {
            FixedText<kLongestUpcA> upcA;
            AppendUpcA<kAlphabet>(eleven, addOn,
                                  guard == '(' ? kAlphabet.guard : kAlphabet.upcERightGuard, upcA);
            ASSERT_EQ(upcA.View(),
                      Walk(kAlphabet, upcADigits, Joined({"o(aAAAAA*CCCCCc", {&guard, 1}, "o"})) +
                          addOnText)
                << eleven;
        }

        const std::string six = digits(6);
        const char system = round % 2 ? '0' : '1';
        const char check = digits(1)[0];
        const auto sets = UpcENumberSets(system, check);
        FixedText<kLongestUpcE> upcE;
        AppendUpcE<kAlphabet>(
            {.numberSystem = system, .six = six, .parityOf = system, .checkDigit = check}, addOn,
            upcE);
        ASSERT_EQ(upcE.View(), Walk(kAlphabet, Joined({{&system, 1}, six, {&check, 1}}),
                                    Joined({"o(", {sets.data(), sets.size()}, ")o"})) +
                                   addOnText)
            << system << six << check;
    }
}

TEST(PlainWalk, ClassicRetail) {
    WalkRetail<kClassicRetailAlphabet>(10);
}
TEST(PlainWalk, CurrentRetail) {
    WalkRetail<kCurrentRetailAlphabet>(23);
}

TEST(PlainWalk, Ean8) {
    std::mt19937 random(9);
    for (int round = 0; round < Rounds(); ++round) {
        const std::string seven = RandomText(random, kDigitCharacters, 7, 7);
        FixedText<kLongestEan8> symbol;
        AppendEan8<kCurrentRetailAlphabet>(seven, symbol);
        ASSERT_EQ(symbol.View(), Walk(kCurrentRetailAlphabet, Completed(seven), "(AAAA*CCCC("));
    }
}

/** The six digits that are found by trying all last ones. */
std::string SuppressByTrying(const std::string& ten) {
    for (char last = '0'; last <= '9'; ++last) {
        std::string six(6, last);
        const std::string_view places = kUpcEExpansion[static_cast<std::size_t>(last - '0')];
        for (std::size_t index = 0; index < places.size(); ++index)
            if (places[index] != '0')
                six[static_cast<std::size_t>(places[index] - '1')] = ten[index];
        six[5] = last;
        if (UpcEExpandsTo(six, ten)) return six;
    }
    return "";
}

std::string Suppressed(const std::string& ten) {
    const auto six = SuppressUpcE(ten);
    return six ? std::string(six->begin(), six->end()) : "";
}

TEST(UpcE, AllSixDigitsAreExpandedAndSuppressedByTheTable) {
    for (int number = 0; number < 1'000'000; ++number) {
        std::string six = std::to_string(number);
        six.insert(0, 6 - six.size(), '0');
        const auto expanded = ExpandUpcE(six);
        const std::string ten(expanded.begin(), expanded.end());
        ASSERT_EQ(IsSuppressedUpcE(six), SuppressByTrying(ten) == six) << six;
        ASSERT_EQ(Suppressed(ten), SuppressByTrying(ten)) << six;
        const char system = static_cast<char>('0' + number % 10);
        ASSERT_EQ(UpcECheckDigit(system, six), Modulo10CheckDigit(Joined({{&system, 1}, ten})))
            << system << six;
    }
}

TEST(UpcE, TenDigitsAreSuppressedAsTryingFinds) {
    std::mt19937 random(29);
    for (int round = 0; round < Rounds(); ++round) {
        const std::string ten = RandomText(random, "0000000123456789", 10, 10);
        ASSERT_EQ(Suppressed(ten), SuppressByTrying(ten)) << ten;
    }
}

/** A number with its number system, six digits or eight, against the UPC-A number it stands for. */
TEST(UpcE, SixDigitsAreWrittenAsTheNumberTheyStandFor) {
    std::mt19937 random(31);
    for (int round = 0; round < Rounds(); ++round) {
        const std::string seven = RandomText(random, kDigitCharacters, 7, 7);
        const auto ten = ExpandUpcE(seven.substr(1));
        const std::string eleven = Joined({seven.substr(0, 1), {ten.data(), ten.size()}});
        const auto built = [](const std::string& data) {
            return Built([&](TextArea& symbol) { return BuildUpcE(data.c_str(), symbol); });
        };
        ASSERT_EQ(built(seven), built(eleven)) << seven;
        ASSERT_EQ(built(seven + "0"), built(eleven)) << seven;
    }
}

/** Longer text is walked without the mask of digits; the symbol of one that fits it is the same but
 *  for its check character when what follows makes it longer. */
TEST(PlainWalk, Code128CountsDigitsInLongTextAsInShort) {
    constexpr std::size_t kMasked = 64;
    std::mt19937 random(22);
    for (int round = 0; round < Rounds(); ++round) {
        const std::string data =
            RandomText(random, "0123456789012345678901234567a- \x01\xCA", 1, kMasked - 1) + "x";
        const auto built = [](const std::string& text) {
            return Built(
                [&](TextArea& symbol) { return BuildCode128Auto(text.c_str(), false, symbol); });
        };
        const std::string shorter = built(data);
        const std::string longer = built(data + std::string(kMasked, 'x'));
        const std::string shared = shorter.substr(0, shorter.size() - 3 - 4);
        ASSERT_EQ(longer.substr(0, shared.size()), shared) << testing::PrintToString(data);
    }
}

}  // namespace

}  // namespace linewright
