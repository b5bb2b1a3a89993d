#include "render/Decimal.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <random>

#include "tests/Rounds.h"

namespace linewright {

namespace {

/** The standard library's digits, without the zeros at their end. */
std::string Judge(double number, int digits) {
    std::array<char, 400> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number,
                                   std::chars_format::fixed, digits)
                         .ptr;
    std::string decimal(text.data(), end);
    if (decimal.find('.') != std::string::npos) {
        decimal.erase(decimal.find_last_not_of('0') + 1);
        if (decimal.back() == '.') decimal.pop_back();
    }
    return decimal == "-0" ? "0" : decimal;
}

TEST(Decimal, HasNoNeedlessDigits) {
    EXPECT_EQ(Decimal(12, 4), "12");
    EXPECT_EQ(Decimal(-0.00004, 4), "0");
    EXPECT_EQ(Decimal(0.05, 4), "0.05");
    EXPECT_EQ(Decimal(99.99996, 4), "100");
}

TEST(Decimal, RoundsTheMiddleToTheEvenOne) {
    EXPECT_EQ(Decimal(0.125, 2), "0.12");
    EXPECT_EQ(Decimal(0.375, 2), "0.38");
    EXPECT_EQ(Decimal(2.5, 0), "2");
    EXPECT_EQ(Decimal(3.5, 0), "4");
}

TEST(Decimal, RoundsTheNumberAndNotItsProduct) {
    // 8.35 is a little less, but ten times it is 83.5.
    EXPECT_EQ(Decimal(8.35, 1), "8.3");
    EXPECT_EQ(Decimal(1.45, 1), "1.4");
}

TEST(Decimal, IsWhatTheStandardLibraryWrites) {
    std::mt19937_64 random(18);
    for (int round = 0; round < Rounds(); ++round) {
        const int digits = static_cast<int>(random() % 16);
        const double parts = static_cast<double>(random() % 20000001) - 1e7;
        const double shortNumber = parts / std::pow(10, random() % 9);
        const double any = std::bit_cast<double>(random());
        for (const double number : {shortNumber, std::nextafter(shortNumber, 1e9),
                                    std::ldexp(parts, -10), std::isfinite(any) ? any : 0.0})
            ASSERT_EQ(Decimal(number, digits), Judge(number, digits)) << number << " " << digits;
    }
}

TEST(Decimal, SaysWhatIsNoNumber) {
    EXPECT_EQ(Decimal(std::numeric_limits<double>::infinity(), 2), "no number");
}

}  // namespace

}  // namespace linewright
