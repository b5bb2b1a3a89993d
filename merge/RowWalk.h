#pragma once

#include <cstdint>
#include <optional>

#include "merge/RowFile.h"

namespace linewright {

/** One of the parts into which a file is cut, at the ends of the records that lie nearest to equal
 *  parts of its bytes. */
struct Shard {
    /** From 1. */
    std::uint64_t part = 1;
    std::uint64_t of = 1;
};
inline constexpr std::uint64_t kMostShards = 65536;

/** Goes through the rows of a file, or of a part of it, and knows where in the file it is. */
class RowWalk {
  public:
    /** The file is borrowed. Throws Failure where it has no length to cut by. */
    RowWalk(RowFile& borrowed, const std::optional<Shard>& wanted);

    /** The next row of the part, blank lines too; false at its end. */
    bool Next();
    /** Where in the file the row ends that came last, in bytes. */
    std::uint64_t Position() const { return position; }
    /** Goes on behind the row that ends there. Throws Failure where none does. */
    void GoTo(std::uint64_t end);

  private:
    bool Read();
    std::uint64_t SizeOf(const Record& row) const;
    std::uint64_t PartOf(std::uint64_t begin, std::uint64_t end) const;

    RowFile& file;
    std::optional<Shard> shard;
    std::uint64_t length = 0;
    std::uint64_t begin = 0;
    std::uint64_t position = 0;
};

}  // namespace linewright
