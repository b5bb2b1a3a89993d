#include "merge/MergeCounts.h"

#include <algorithm>
#include <limits>
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

namespace linewright {

namespace {

using ReasonEntry = std::pair<const std::string, MergeCounts::Reason>;

std::vector<const ReasonEntry*> InOrder(const MergeCounts& counts) {
    std::vector<const ReasonEntry*> entries(counts.reasons.size());
    for (const ReasonEntry& entry : counts.reasons) entries[entry.second.place] = &entry;
    return entries;
}

}  // namespace

void MergeCounts::CountRefusal(const std::string& reason) {
    ++refused;
    ++reasons.try_emplace(reason, Reason{0, reasons.size()}).first->second.rows;
}

void MergeCounts::Add(const MergeCounts& following) {
    Add(following, kMostReasons);
}

void MergeCounts::AddAll(const MergeCounts& following) {
    Add(following, std::numeric_limits<std::size_t>::max());
}

void MergeCounts::Add(const MergeCounts& following, std::size_t mostReasons) {
    rows += following.rows;
    refused += following.refused;
    warned += following.warned;
    upcANumbers.Add(following.upcANumbers);
    for (const ReasonEntry* const entry : InOrder(following)) {
        const auto known = reasons.find(entry->first);
        if (known != reasons.end()) {
            known->second.rows += entry->second.rows;
        } else if (reasons.size() < mostReasons) {
            reasons.emplace(entry->first, Reason{entry->second.rows, reasons.size()});
        }
    }
}

std::string JsonOf(const MergeCounts& counts) {
    nlohmann::ordered_json json{{"rows", counts.rows},
                                {"refused", counts.refused},
                                {"warned", counts.warned},
                                {"upcA", counts.upcANumbers.Numbers().count},
                                {"twelveDigits", counts.upcANumbers.Numbers().of},
                                {"reasons", nlohmann::ordered_json::array()}};
    for (const ReasonEntry* const entry : InOrder(counts)) {
        json["reasons"].push_back({entry->first, entry->second.rows});
    }
    // A reason may quote what a file has.
    return json.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

MergeCounts CountsOf(const std::string& text) {
    const nlohmann::json json = nlohmann::json::parse(text);
    MergeCounts counts;
    counts.rows = json.at("rows");
    counts.refused = json.at("refused");
    counts.warned = json.at("warned");
    counts.upcANumbers = UpcAColumn({json.at("upcA"), json.at("twelveDigits")});
    for (const auto& reason : json.at("reasons")) {
        counts.reasons.emplace(reason.at(0),
                               MergeCounts::Reason{reason.at(1), counts.reasons.size()});
    }
    return counts;
}

std::string SummaryOf(const MergeCounts& counts) {
    std::vector<std::pair<std::string, std::uint64_t>> reasons;
    reasons.reserve(counts.reasons.size());
    for (const auto& [reason, count] : counts.reasons) reasons.emplace_back(reason, count.rows);
    std::stable_sort(reasons.begin(), reasons.end(),
                     [](const auto& a, const auto& b) { return a.second > b.second; });
    nlohmann::ordered_json summary{{"rows", counts.rows},
                                   {"encoded", counts.rows - counts.refused},
                                   {"warnings", counts.warned},
                                   {"refused", counts.refused},
                                   {"reasons", nlohmann::ordered_json::array()}};
    for (const auto& [reason, rows] : reasons) {
        summary["reasons"].push_back({{"reason", reason}, {"rows", rows}});
    }
    return summary.dump(2) + '\n';
}

}  // namespace linewright
