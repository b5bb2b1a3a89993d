#include "merge/Sequence.h"

#include <fmt/format.h>

#include <algorithm>
#include <limits>

namespace linewright {

namespace {

/** Of a sequence whose first number and count are fine. In a wider type, so that nothing of it can
 *  be too large. */
long double LastOf(const Sequence& sequence) {
    return static_cast<long double>(std::stoll(sequence.first)) +
           static_cast<long double>(sequence.step) * static_cast<long double>(sequence.count - 1);
}

std::int64_t Limit(std::size_t digits) {
    std::int64_t limit = 1;
    for (std::size_t i = 0; i < digits; ++i) limit *= 10;
    return limit;
}

}  // namespace

std::optional<SequenceProblem> ProblemOf(const Sequence& sequence) {
    const std::string& first = sequence.first;
    const bool isNumber = !first.empty() && first.size() <= kMostSequenceDigits &&
                          std::all_of(first.begin(), first.end(),
                                      [](char byte) { return byte >= '0' && byte <= '9'; });
    if (!isNumber) return SequenceProblem::kNoNumber;
    if (sequence.count == 0 || sequence.count > kLongestSequence) return SequenceProblem::kCount;
    const long double last = LastOf(sequence);
    if (last < 0) return SequenceProblem::kBelowZero;
    if (last >= static_cast<long double>(Limit(first.size()))) return SequenceProblem::kTooLarge;
    return std::nullopt;
}

std::string LastNumber(const Sequence& sequence) {
    return fmt::format("{:.0f}", LastOf(sequence));
}

std::vector<std::string> TextsOf(const Sequence& sequence) {
    std::vector<std::string> texts;
    texts.reserve(sequence.count);
    std::int64_t number = std::stoll(sequence.first);
    for (std::uint64_t i = 0; i < sequence.count; ++i) {
        texts.push_back(fmt::format("{}{:0{}}{}", sequence.prefix, number, sequence.first.size(),
                                    sequence.suffix));
        if (i + 1 < sequence.count) number += sequence.step;
    }
    return texts;
}

}  // namespace linewright
