#include "meaning/UpcAColumn.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <random>
#include <string>

#include "standards/CheckDigits.h"
#include "types/WrittenType.h"

namespace linewright {

namespace {

std::optional<UpcANumbers> Found(std::string_view type,
                                 std::initializer_list<std::string_view> column) {
    UpcAColumn rows;
    for (const std::string_view data : column) rows.Take(FindWrittenType(type).type, data);
    return rows.Found();
}

TEST(UpcAColumn, IsNotedWhereMoreThanHalfAreUpcA) {
    constexpr UpcANumbers kTwoOfThree{2, 3};
    for (const std::string_view type : {"ean13", "jan13", "classic-ean13", "classic-jan13"}) {
        EXPECT_EQ(Found(type, {"036000291452", "012345678905", "400638133393"}), kTwoOfThree);
        EXPECT_EQ(Found(type, {"036000291452", "400638133393"}), std::nullopt);
    }
}

TEST(UpcAColumn, CountsNumbersOfTwelveDigitsAlone) {
    EXPECT_EQ(Found("ean13", {"036000291452", "4006381333931", "03600029145", "", "03600029145x"}),
              (UpcANumbers{1, 1}));
    EXPECT_EQ(Found("ean13", {}), std::nullopt);
}

TEST(UpcAColumn, KnowsTheCheckDigitOfAnyNumber) {
    std::mt19937_64 random(12);
    for (int round = 0; round < 2'000; ++round) {
        std::string number = std::to_string(100'000'000'000 + random() % 100'000'000'000).substr(1);
        const char check = Modulo10CheckDigit(number);
        for (char last = '0'; last <= '9'; ++last) {
            const auto found = Found("ean13", {number + last});
            ASSERT_EQ(found.has_value(), last == check) << number << last;
        }
    }
}

TEST(UpcAColumn, CountsOnlyThoseForEan13) {
    EXPECT_EQ(Found("upca", {"036000291452"}), std::nullopt);
    EXPECT_EQ(Found("no such type", {"036000291452"}), std::nullopt);
}

TEST(UpcAColumn, AddsUpWithTheRowsThatFollow) {
    UpcAColumn column({1, 3});
    EXPECT_EQ(column.Found(), std::nullopt);
    column.Add(UpcAColumn({4, 5}));
    EXPECT_EQ(column.Found(), (UpcANumbers{5, 8}));
    EXPECT_EQ(column.Numbers(), (UpcANumbers{5, 8}));
}

}  // namespace

}  // namespace linewright
