#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace linewright {

/** Numbers that are counted up or down, each with as many digits as the first one has. */
struct Sequence {
    std::string prefix{};
    std::string first = "1";
    std::string suffix{};
    std::int64_t step = 1;
    std::uint64_t count = 1;
};

/** No more are counted, and no number has more digits. */
inline constexpr std::uint64_t kLongestSequence = 1000000;
inline constexpr std::size_t kMostSequenceDigits = 18;

enum class SequenceProblem {
    /** The first one is no number of 1 to 18 digits. */
    kNoNumber,
    /** There is nothing to count, or more than the most. */
    kCount,
    /** The last one has more digits than the first. */
    kTooLarge,
    /** The last one is below zero. */
    kBelowZero,
};

/** Why a sequence cannot be counted; none where it can. */
std::optional<SequenceProblem> ProblemOf(const Sequence& sequence);

/** The last number as it would be, of a sequence that is too large. */
std::string LastNumber(const Sequence& sequence);

/** All texts of a sequence that has no problem. */
std::vector<std::string> TextsOf(const Sequence& sequence);

}  // namespace linewright
