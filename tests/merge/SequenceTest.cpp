#include "merge/Sequence.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace linewright {

namespace {

using testing::ElementsAre;

TEST(Sequence, KeepsTheDigitsOfTheFirst) {
    EXPECT_THAT(TextsOf({.first = "000100", .step = 1, .count = 3}),
                ElementsAre("000100", "000101", "000102"));
    EXPECT_THAT(TextsOf({.first = "8", .step = 1, .count = 2}), ElementsAre("8", "9"));
    EXPECT_THAT(TextsOf({.prefix = "A-", .first = "07", .suffix = "/x", .step = -7, .count = 2}),
                ElementsAre("A-07/x", "A-00/x"));
    EXPECT_THAT(TextsOf({.first = "5", .step = 0, .count = 2}), ElementsAre("5", "5"));
    EXPECT_THAT(TextsOf({.first = "999999999999999998", .step = 1, .count = 2}),
                ElementsAre("999999999999999998", "999999999999999999"));
    const auto all = TextsOf({.first = "000100", .step = 1, .count = 200});
    EXPECT_EQ(all.size(), 200U);
    EXPECT_EQ(all.back(), "000299");
}

TEST(Sequence, RefusesWhatCannotBeCounted) {
    const auto problem = [](const Sequence& sequence) { return ProblemOf(sequence); };
    for (const char* const first : {"", "x", "1x", "-1", "+1", " 1", "1.5", "1234567890123456789"})
        EXPECT_EQ(problem({.first = first}), SequenceProblem::kNoNumber) << first;
    EXPECT_EQ(problem({.first = "1", .count = 0}), SequenceProblem::kCount);
    EXPECT_EQ(problem({.first = "0000001", .count = kLongestSequence + 1}),
              SequenceProblem::kCount);
    EXPECT_EQ(problem({.first = "8", .step = 1, .count = 3}), SequenceProblem::kTooLarge);
    EXPECT_EQ(LastNumber({.first = "8", .step = 1, .count = 3}), "10");
    EXPECT_EQ(problem({.first = "999", .step = 1, .count = 2}), SequenceProblem::kTooLarge);
    EXPECT_EQ(problem({.first = "0999", .step = 1, .count = 2}), std::nullopt);
    EXPECT_EQ(problem({.first = "5", .step = -3, .count = 3}), SequenceProblem::kBelowZero);
    EXPECT_EQ(
        problem({.first = "999999999999999999", .step = 9223372036854775807, .count = 1000000}),
        SequenceProblem::kTooLarge);
    EXPECT_EQ(problem({.first = "999999999999999999", .step = 9223372036854775807, .count = 1}),
              std::nullopt);
}

}  // namespace

}  // namespace linewright
