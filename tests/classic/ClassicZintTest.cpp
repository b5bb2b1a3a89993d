#include <gtest/gtest.h>

#include <random>

#include "standards/CodabarPatterns.h"
#include "standards/Code39Patterns.h"
#include "tests/ImbRandomCode.h"
#include "tests/TestBlock.h"
#include "tests/TestHost.h"
#include "tests/ZintSymbol.h"
#include "tests/classic/ClassicTypes.h"

// Font strings, drawn by what the characters of the classic fonts mean, against libzint's symbols.

namespace linewright {

namespace {

constexpr int kSymbols = 3000;

const ClassicType& TypeOf(std::size_t code) {
    for (const ClassicType& type : ClassicTypes())
        if (type.code == code) return type;
    throw std::out_of_range("no classic type has this code");
}

std::string FontString(std::size_t code, const std::string& data) {
    TestBlock block(data);
    EXPECT_EQ(EncodeClassic(TypeOf(code), block.Data()), kEncoded) << data;
    return block.Text();
}

std::string RandomText(std::mt19937& random, std::string_view alphabet, std::size_t longest) {
    std::string text;
    for (std::size_t length = 1 + random() % longest; length > 0; --length)
        text += alphabet[random() % alphabet.size()];
    return text;
}

/** Bars and spaces in turn, a bar first: "n" is one module, "w" as many as given. */
std::string Modules(std::string_view elements, std::size_t wide) {
    std::string modules;
    for (const char element : elements)
        modules.append(element == 'w' ? wide : 1,
                       modules.empty() || modules.back() == '0' ? '1' : '0');
    return modules;
}

class ClassicZint : public testing::Test {
  protected:
    std::mt19937 random{39};

  private:
    TestHost host;
    KeptPreferences kept;
};

// --------------------------------------------------------------------------------------- Code 39

std::string DrawCode39(const std::string& symbol) {
    std::string modules;
    for (const char character : symbol) {
        const std::size_t row = character == '*'   ? kCode39StartStop
                                : character == '!' ? *Code39Value(' ')
                                                   : *Code39Value(character);
        if (!modules.empty()) modules += '0';
        modules += Modules(kCode39Patterns[row], 2);
    }
    return modules;
}

/** libzint ends with the gap that follows each character. */
std::string WithoutGap(std::string modules) {
    while (!modules.empty() && modules.back() == '0') modules.pop_back();
    return modules;
}

TEST_F(ClassicZint, DrawsTheSameCode39) {
    for (const int hasCheck : {0, 1}) {
        preferences.code39CheckMode = hasCheck ? 2 : 0;
        for (int count = 0; count < kSymbols; ++count) {
            const std::string data = RandomText(random, kCode39Characters, 60);
            ASSERT_EQ(DrawCode39(FontString(7, data)),
                      WithoutGap(ZintModules(BARCODE_CODE39, data, hasCheck)))
                << data;
        }
    }
}

TEST_F(ClassicZint, DrawsTheSameFullAsciiCode39) {
    std::string ascii;
    for (char byte = 0; byte < 127; ++byte) ascii += byte;
    ascii += '\x7F';
    for (const int hasCheck : {0, 1}) {
        preferences.code39CheckMode = hasCheck ? 2 : 0;
        for (const char character : ascii) {
            const std::string data(1, character);
            ASSERT_EQ(DrawCode39(FontString(8, data)),
                      WithoutGap(ZintModules(BARCODE_EXCODE39, data, hasCheck)))
                << testing::PrintToString(data);
        }
        for (int count = 0; count < kSymbols; ++count) {
            const std::string data = RandomText(random, ascii, 30);
            ASSERT_EQ(DrawCode39(FontString(8, data)),
                      WithoutGap(ZintModules(BARCODE_EXCODE39, data, hasCheck)))
                << testing::PrintToString(data);
        }
    }
}

// --------------------------------------------------------------------------------------- Codabar

std::string DrawCodabar(const std::string& symbol) {
    std::string modules;
    for (const char character : symbol) {
        if (!modules.empty()) modules += '0';
        modules += Modules(kCodabarPatterns[*CodabarValue(character)], 2);
    }
    return modules;
}

TEST_F(ClassicZint, DrawsTheSameCodabar) {
    for (int count = 0; count < kSymbols; ++count) {
        const std::string data = RandomText(random, kCodabarDataCharacters, 50);
        preferences.codabarStart = static_cast<uint16>('A' + random() % 4);
        preferences.codabarStop = static_cast<uint16>('A' + random() % 4);
        const std::string framed = static_cast<char>(preferences.codabarStart) + data +
                                   static_cast<char>(preferences.codabarStop);
        ASSERT_EQ(DrawCodabar(FontString(3, data)),
                  WithoutGap(ZintModules(BARCODE_CODABAR, framed)))
            << framed;
    }
}

// --------------------------------------------------------------------------- Interleaved 2 of 5

std::string DrawInterleaved2of5(const std::string& symbol) {
    std::string elements;
    for (const char character : symbol) {
        switch (character) {
            case '<': elements += "nnnn"; break;
            case '>': elements += "wnn"; break;
            case 'A': elements += "nn"; break;
            case 'B': elements += "nw"; break;
            case 'C': elements += "wn"; break;
            case 'D': elements += "ww"; break;
            default: ADD_FAILURE() << character;
        }
    }
    return Modules(elements, 3);
}

TEST_F(ClassicZint, DrawsTheSameInterleaved2of5WithoutCheckDigit) {
    preferences.i2of5CheckDigit = 0;
    for (int count = 0; count < kSymbols; ++count) {
        const std::string data = RandomText(random, "0123456789", 60);
        ASSERT_EQ(DrawInterleaved2of5(FontString(11, data)), ZintModules(BARCODE_C25INTER, data))
            << data;
    }
}

// For odd data the check digit is the standard's.
TEST_F(ClassicZint, DrawsTheSameInterleaved2of5WithCheckDigit) {
    for (int count = 0; count < kSymbols; ++count) {
        const std::string data = RandomDigits(random, 1 + 2 * (random() % 30));
        ASSERT_EQ(DrawInterleaved2of5(FontString(11, data)), ZintModules(BARCODE_C25INTER, data, 1))
            << data;
    }
}

// For even data it is weighted from the left, and a zero stands in front of it.
TEST_F(ClassicZint, DrawsTheSameInterleaved2of5WithCheckDigitOfEvenData) {
    for (int count = 0; count < kSymbols; ++count) {
        const std::string data = RandomDigits(random, 2 + 2 * (random() % 30));
        int sum = 0;
        for (std::size_t place = 0; place < data.size(); ++place)
            sum += (data[place] - '0') * (place % 2 == 0 ? 3 : 1);
        const std::string digits = data + "0" + std::to_string((100'000 - sum) % 10);
        ASSERT_EQ(DrawInterleaved2of5(FontString(11, data)), ZintModules(BARCODE_C25INTER, digits))
            << data;
    }
}

// ------------------------------------------------------------------------------------------- MSI

std::string DrawMsi(const std::string& symbol) {
    std::string modules;
    for (const char character : symbol) {
        if (character == '<') {
            modules += "110";
        } else if (character == '>') {
            modules += "1001";
        } else {
            for (const int bit : {8, 4, 2, 1}) modules += (character - '0') & bit ? "110" : "100";
        }
    }
    return modules;
}

/** MSI's checks by libzint's numbers: 1 modulo 10, 2 modulo 10 twice, 3 modulo 11 with weights 2 to
 *  7, 4 modulo 11 and modulo 10. */
struct MsiChecks {
    int16 first;
    int16 second;
    int zintOption;
};

TEST_F(ClassicZint, DrawsTheSameMsi) {
    for (const MsiChecks& checks :
         {MsiChecks{0, 0, 0}, MsiChecks{1, 0, 1}, MsiChecks{0, 1, 1}, MsiChecks{1, 1, 2},
          MsiChecks{2, 0, 3}, MsiChecks{0, 2, 3}, MsiChecks{2, 1, 4}}) {
        preferences.msiFirstCheck = checks.first;
        preferences.msiSecondCheck = checks.second;
        int drawn = 0;
        for (int count = 0; count < kSymbols; ++count) {
            const std::string data = RandomDigits(random, 1 + random() % 17);
            TestBlock block(data);
            const int16 status = EncodeClassic(TypeOf(14), block.Data());
            if (checks.zintOption >= 3 && status == -4) continue;  // libzint prints "10" for it
            ASSERT_EQ(status, kEncoded) << data;
            ASSERT_EQ(DrawMsi(block.Text()),
                      ZintModules(BARCODE_MSI_PLESSEY, data, checks.zintOption))
                << data;
            ++drawn;
        }
        EXPECT_GT(drawn, kSymbols * 4 / 5);
    }
}

// --------------------------------------------------------------------------------------- Postnet

/** Tall bars of a digit: the two that weigh 7, 4, 2, 1 or 0 and add up to it, 7 + 4 for 0. */
std::string TallBars(char digit) {
    if (digit == '/') return "1";
    constexpr int kWeights[] = {7, 4, 2, 1, 0};
    for (std::size_t first = 0; first < 5; ++first) {
        for (std::size_t second = first + 1; second < 5; ++second) {
            if ((kWeights[first] + kWeights[second]) % 11 != digit - '0') continue;
            std::string bars = "00000";
            bars[first] = bars[second] = '1';
            return bars;
        }
    }
    ADD_FAILURE() << digit;
    return {};
}

TEST_F(ClassicZint, DrawsTheSamePostnet) {
    for (int count = 0; count < kSymbols; ++count) {
        constexpr std::size_t kLengths[] = {5, 9, 11};
        const std::string data = RandomDigits(random, kLengths[count % 3]);
        const std::vector<std::string> rows = ZintRows(BARCODE_POSTNET, data);
        ASSERT_EQ(rows.size(), 2u);
        std::string tall;
        for (const char character : FontString(1, data)) tall += TallBars(character);
        std::string upper;
        std::string lower;
        for (std::size_t bar = 0; bar < tall.size(); ++bar) {
            if (bar > 0) {
                upper += '0';
                lower += '0';
            }
            upper += tall[bar];
            lower += '1';
        }
        ASSERT_EQ(WithoutGap(rows[0]), upper) << data;
        ASSERT_EQ(WithoutGap(rows[1]), lower) << data;
    }
}

// ----------------------------------------------------------------------------------- EAN and UPC

/** ISO/IEC 15420, number set A; C is its complement and B is C from right to left. */
constexpr std::string_view kNumberSetA[] = {"0001101", "0011001", "0010011", "0111101", "0100011",
                                            "0110001", "0101111", "0111011", "0110111", "0001011"};

std::string DigitModules(int digit, char numberSet) {
    std::string modules(kNumberSetA[digit]);
    if (numberSet != 'A')
        for (char& module : modules) module = module == '0' ? '1' : '0';
    if (numberSet == 'B') return {modules.rbegin(), modules.rend()};
    return modules;
}

/** A character of the font within the bars. */
std::string EanUpcModules(uint8 byte) {
    const auto within = [byte](int first) { return byte >= first && byte <= first + 9; };
    if (byte == '<') return "101";
    if (byte == '=') return "01010";
    if (byte == '>') return "010101";
    if (byte == '+') return "1011";
    if (byte == '-') return "01";
    if (within('!')) return DigitModules(byte - '!', 'A');
    if (within('0')) return DigitModules(byte - '0', 'A');
    if (within('k')) return DigitModules(byte - 'k', 'B');
    if (within('a')) return DigitModules(byte - 'a', 'C');
    if (within('A')) return DigitModules(byte - 'A', 'C');
    if (within('U')) return DigitModules(byte - 'U', 'A');
    if (within(128)) return DigitModules(byte - 128, 'B');
    ADD_FAILURE() << "no character of the font: " << int{byte};
    return {};
}

/** The digits outside the bars draw none; " " stands between the main symbol and its add-on. */
std::string DrawEanUpc(const std::string& symbol, std::size_t mainSize) {
    std::string modules;
    for (std::size_t place = 0; place < symbol.size(); ++place) {
        const auto byte = static_cast<uint8>(symbol[place]);
        if (place == mainSize) modules += ' ';
        if (byte < 'u' || byte > '~') modules += EanUpcModules(byte);
    }
    return modules;
}

/** libzint's modules with the gap before the add-on as one " ". */
std::string ZintEanUpc(int symbology, const std::string& main, const std::string& addOn,
                       std::size_t mainModules) {
    if (addOn.empty()) return ZintModules(symbology, main);
    const std::string modules = ZintModules(symbology, main + "+" + addOn);
    return modules.substr(0, mainModules) + " " + modules.substr(modules.find('1', mainModules));
}

struct EanUpcCase {
    std::size_t code;
    int symbology;
    std::size_t digits;
    std::size_t mainSize;
};

TEST_F(ClassicZint, DrawsTheSameEanAndUpcA) {
    for (const EanUpcCase& type :
         {EanUpcCase{10, BARCODE_EANX, 12, 16}, EanUpcCase{13, BARCODE_EANX, 12, 16},
          EanUpcCase{15, BARCODE_UPCA, 11, 17}}) {
        for (const std::size_t addOnLength : {0u, 2u, 5u}) {
            for (int count = 0; count < kSymbols; ++count) {
                const std::string main = RandomDigits(random, type.digits);
                const std::string addOn = RandomDigits(random, addOnLength);
                ASSERT_EQ(DrawEanUpc(FontString(type.code, main + addOn), type.mainSize),
                          ZintEanUpc(type.symbology, main, addOn, 95))
                    << main << '+' << addOn;
            }
        }
    }
}

// Where the six digits that are printed are those given.
TEST_F(ClassicZint, DrawsTheSameUpcE) {
    for (int count = 0; count < kSymbols; ++count) {
        std::string data = "0";
        while (data.size() < 6) data += RandomText(random, "123456789", 1);
        data += RandomText(random, "56789", 1);
        ASSERT_EQ(DrawEanUpc(FontString(16, data), 10), ZintModules(BARCODE_UPCE, data)) << data;
    }
}

}  // namespace

}  // namespace linewright
