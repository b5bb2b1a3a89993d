#include "meaning/UpcAColumn.h"

#include <gtest/gtest.h>

#include <initializer_list>

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
