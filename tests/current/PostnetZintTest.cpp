#include <gtest/gtest.h>

#include "core/FixedText.h"
#include "current/Postnet.h"
#include "tests/ZintSymbol.h"
#include "tests/current/Elements.h"
#include "tests/current/RandomText.h"

namespace linewright {

namespace {

/** libzint's bars, always with a check digit: two rows, tall bars in both, every second module. */
std::string ZintBars(const std::string& digits) {
    const auto rows = ZintRows(BARCODE_POSTNET, digits);
    EXPECT_EQ(rows.size(), 2u);
    const std::string& upper = rows.at(0);
    const std::string& lower = rows.at(1);
    std::string bars;
    for (std::size_t module = 0; module < lower.size(); ++module)
        if (lower[module] == '1') bars += upper[module];
    return bars;
}

std::string OurBars(const std::string& digits, bool addCheckDigit) {
    FixedText<kPostnetCapacity> symbol;
    EXPECT_EQ(BuildPostnetCurrent(digits.c_str(), addCheckDigit, symbol), kEncoded);
    return PostnetFontBars(symbol.View());
}

TEST(PostnetZint, DrawsTheSameBars) {
    std::mt19937 random(30);
    constexpr std::size_t kLengths[] = {5, 9, 11};
    for (int round = 0; round < 2000; ++round) {
        const std::size_t length = kLengths[round % 3];
        const std::string digits = RandomText(random, "0123456789", length, length);
        std::string expected = ZintBars(digits);
        ASSERT_EQ(OurBars(digits, true), expected) << digits;
        expected.erase(expected.size() - 6, 5);  // the check digit in front of the frame bar
        ASSERT_EQ(OurBars(digits, false), expected) << digits;
    }
}

}  // namespace

}  // namespace linewright
