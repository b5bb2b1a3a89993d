#include "current/UpcE.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "tests/current/RandomText.h"

namespace linewright {

namespace {

/** Zero suppression as four rules, each with the manufacturer digits, then the product digits. */
std::string SixDigitsByRules(const std::string& ten) {
    const std::string m = ten.substr(0, 5);
    const std::string p = ten.substr(5);
    const bool fourZeros = p.substr(0, 4) == "0000";
    const bool endsInZeros = m.substr(3) == "00";
    if (p[4] >= '5' && m[4] != '0' && fourZeros) return m + p[4];
    if (m[4] == '0' && fourZeros && m[3] != '0') return m.substr(0, 4) + p[4] + "4";
    if (endsInZeros && p.substr(0, 2) == "00" && m[2] <= '2')
        return m.substr(0, 2) + p.substr(2) + m[2];
    if (endsInZeros && p.substr(0, 3) == "000" && m[2] >= '3')
        return m.substr(0, 3) + p.substr(3) + "3";
    return "";
}

/** The six digits of a symbol, whichever their number sets; "" for a full-length one. */
std::string SixDigitsOf(std::string_view symbol) {
    if (symbol.size() != 10) return "";
    std::string digits(symbol.substr(2, 6));
    for (char& digit : digits)
        if (digit >= 'A') digit = static_cast<char>(digit - 'A' + '0');
    return digits;
}

TEST(UpcE, SuppressesZerosByTheFourRules) {
    std::mt19937 random(5);
    int suppressed = 0;
    constexpr int kRounds = 30'000;
    for (int round = 0; round < kRounds; ++round) {
        const std::string ten = RandomText(random, "0000000123456789", 10, 10);
        FixedText<kLongestUpcA> symbol;
        ASSERT_EQ(BuildUpcE(("0" + ten).c_str(), symbol), kEncoded);
        const std::string expected = SixDigitsByRules(ten);
        ASSERT_EQ(SixDigitsOf(symbol.View()), expected) << ten;
        suppressed += !expected.empty();
    }
    EXPECT_GT(suppressed, 1000);
    EXPECT_LT(suppressed, kRounds - 1000);
}

}  // namespace

}  // namespace linewright
