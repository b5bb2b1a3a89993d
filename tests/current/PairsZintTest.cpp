#include <gtest/gtest.h>

#include "core/FixedText.h"
#include "current/Codabar.h"
#include "current/Code39.h"
#include "current/Interleaved2of5.h"
#include "current/Msi.h"
#include "tests/ZintSymbol.h"
#include "tests/current/Elements.h"
#include "tests/current/RandomText.h"

// Symbols of narrow and wide elements for the bars font against libzint's. It draws wide elements
// two or three modules wide, so what is compared are patterns.

namespace linewright {

namespace {

constexpr int kRounds = 2000;
constexpr double kRatios[] = {3.0, 2.5, 2.0};

std::string Pattern(const TextArea& symbol, double ratio) {
    Elements elements = BarsFontElements(symbol.View());
    elements.pop_back();  // the space behind the last bar
    return NarrowAndWide(elements, ratio);
}

std::string ZintPattern(int symbology, const std::string& data, double wide, bool check = false) {
    std::string modules = ZintModules(symbology, data, check);
    modules.resize(modules.rfind('1') + 1);  // for Codabar there is a gap behind the last bar
    return NarrowAndWide(RunsOf(modules), wide);
}

TEST(PairsZint, Code39) {
    std::mt19937 random(39);
    for (int round = 0; round < kRounds; ++round) {
        const bool check = round % 2 == 1;
        const std::string data =
            RandomText(random, "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%", 1, 80);
        const std::string expected = ZintPattern(BARCODE_CODE39, data, 2, check);
        for (const double ratio : kRatios) {
            FixedText<kCode39Capacity> symbol;
            ASSERT_EQ(BuildCode39Current(data.c_str(), ratio, check, symbol), kEncoded);
            ASSERT_EQ(Pattern(symbol, ratio), expected) << data << " at " << ratio;
        }
    }
}

TEST(PairsZint, Codabar) {
    std::mt19937 random(20);
    for (int round = 0; round < kRounds; ++round) {
        const std::string data = RandomText(random, "0123456789-$:/.+", 1, 55);
        const std::string start = RandomText(random, "ABCD", 1, 1);
        const std::string stop = RandomText(random, "ABCD", 1, 1);
        std::string whole = start;
        whole.append(data).append(stop);
        const std::string expected = ZintPattern(BARCODE_CODABAR, whole, 2);
        for (const double ratio : kRatios) {
            FixedText<kCodabarCapacity> symbol;
            ASSERT_EQ(BuildCodabarCurrent(data.c_str(), ratio, start.c_str(), stop.c_str(), symbol),
                      kEncoded);
            ASSERT_EQ(Pattern(symbol, ratio), expected) << whole << " at " << ratio;
        }
    }
}

TEST(PairsZint, Interleaved2of5) {
    std::mt19937 random(25);
    for (int round = 0; round < kRounds; ++round) {
        const bool check = round % 2 == 1;
        const std::string data = RandomText(random, "0123456789", 1, 88);
        const std::string expected = ZintPattern(BARCODE_C25INTER, data, 3, check);
        for (const double ratio : kRatios) {
            FixedText<kInterleaved2of5Capacity> symbol;
            ASSERT_EQ(BuildInterleaved2of5Current(data.c_str(), ratio, check, symbol), kEncoded);
            ASSERT_EQ(Pattern(symbol, ratio), expected) << data << " at " << ratio;
        }
    }
}

TEST(PairsZint, Msi) {
    std::mt19937 random(27);
    for (int round = 0; round < kRounds; ++round) {
        const bool check = round % 2 == 1;
        const std::string data = RandomText(random, "0123456789", 1, 64);
        const std::string expected = ZintPattern(BARCODE_MSI_PLESSEY, data, 2, check);
        for (const double ratio : kRatios) {
            FixedText<kMsiCapacity> symbol;
            ASSERT_EQ(BuildMsiCurrent(data.c_str(), ratio, check, symbol), kEncoded);
            ASSERT_EQ(Pattern(symbol, ratio), expected) << data << " at " << ratio;
        }
    }
}

}  // namespace

}  // namespace linewright
