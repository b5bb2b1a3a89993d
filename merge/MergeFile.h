#pragma once

#include <functional>
#include <istream>
#include <ostream>
#include <string>

#include "merge/Merge.h"
#include "merge/RowFile.h"

namespace linewright {

struct MergeFiles {
    /** UTF-8; "-" is standard input. */
    std::string input;
    /** UTF-8; "-" is standard output. */
    std::string output = "-";
};

/** Where a merge runs: all of it is borrowed. */
struct MergePlace {
    Service& service;
    std::istream& in;
    std::ostream& out;
    Language language;
    /** Empty for barcodes that nobody scans. */
    MakeScanned scan{};
    /** Called now and then. */
    std::function<void(const RowFile& file, std::uint64_t rows)> show{};
};

struct MergeResult {
    MergeCounts counts;
    /** The line of the refused row that ended the run; none where it went to its end. */
    std::optional<std::uint64_t> stoppedAt;
};

/** Merges a file: reads it row by row and writes each with its results, and before it waits for
 *  more of its input all that is finished. An output that is a file appears whole or not at all:
 * not when refused rows ended the run, of which rejects and summary tell all the same. Throws
 * Failure for files that cannot be read or written. */
MergeResult MergeFile(const MergePlace& place, const MergeFiles& files,
                      const MergeOptions& options);

}  // namespace linewright
