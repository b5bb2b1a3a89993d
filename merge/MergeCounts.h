#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

#include "meaning/UpcAColumn.h"

namespace linewright {

inline constexpr std::size_t kMostReasons = 1000;

/** What became of rows. */
struct MergeCounts {
    struct Reason {
        std::uint64_t rows = 0;
        /** Which of the reasons it is in the order in which they came up, from 0. */
        std::size_t place = 0;
    };

    std::uint64_t rows = 0;
    std::uint64_t refused = 0;
    std::uint64_t warned = 0;
    UpcAColumn upcANumbers{};
    /** How many rows were refused for which reason. */
    std::map<std::string, Reason> reasons;

    void CountRefusal(const std::string& reason);
    /** Adds those of rows that follow; of reasons the first kMostReasons are kept. */
    void Add(const MergeCounts& following);
    /** The same with all reasons. */
    void AddAll(const MergeCounts& following);

  private:
    void Add(const MergeCounts& following, std::size_t mostReasons);
};

/** The counts in one line of JSON, and back; throws nlohmann::json::exception for what is none. */
std::string JsonOf(const MergeCounts& counts);
MergeCounts CountsOf(const std::string& text);

/** The counts as JSON for people: rows, encoded, with warnings, refused, and how many for which
 *  reason. */
std::string SummaryOf(const MergeCounts& counts);

}  // namespace linewright
