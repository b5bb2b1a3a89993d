#pragma once

#include <cstdint>
#include <string>

#include "files/OwnFile.h"
#include "merge/MergeCounts.h"

namespace linewright {

/** How far a merge is: the rows up to a place of the input are in the drafts, and on the disk. */
struct MergePoint {
    /** In bytes: where the input goes on, and how long the drafts are. */
    std::uint64_t input = 0;
    std::uint64_t output = 0;
    std::uint64_t rejects = 0;
    /** Of all these rows. */
    MergeCounts counts;
    /** Nothing is left but to put the drafts into their places. */
    bool isWhole = false;
};

/**
 * What a merge writes beside its output, as `.OUT.linewright-journal`, so that after its end by
 * whatever means another run can go on: a line with what it merges, and one for each point that it
 * reached, each with a sum of its bytes. Lines behind one whose sum is wrong do not count. Throws
 * Failure for what cannot be read or written.
 */
class Journal {
  public:
    /** Opens or begins it. Names are UTF-8. Throws Failure when it is another input's, or one of
     *  other circumstances, or another run has it. */
    Journal(const std::string& output, const std::string& input, const std::string& circumstances);

    /** The one that was reached last; the beginning of a new journal. */
    const MergePoint& Last() const { return last; }
    /** The drafts are on the disk up to this point; `counts` are those of the rows since the last.
     */
    void Reach(const MergePoint& point);
    /** The merge is done. */
    void Remove();

  private:
    void Begin(const std::string& merge);
    void RequireSame(const std::string& was, const std::string& is) const;
    void Write(const std::string& line);
    void Must(bool isDone) const;
    [[noreturn]] void Fail(const std::string& sentence) const;

    std::string name;
    files::OwnFile file;
    MergePoint last;
};

}  // namespace linewright
