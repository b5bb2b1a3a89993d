#include "merge/RowWalk.h"

#include <algorithm>

namespace linewright {

RowWalk::RowWalk(RowFile& borrowed, const std::optional<Shard>& wanted)
    : file(borrowed), shard(wanted) {
    if (file.HasByteOrderMark()) position += SizeIn(file.FileEncoding(), kByteOrderMark);
    if (file.Header()) position += SizeOf(*file.Header());
    if (!shard) return;
    file.Named([this] {
        if (!file.Length()) {
            throw Failure("--shard needs a file, whose length is known before it is read");
        }
        length = *file.Length();
    });
}

std::uint64_t RowWalk::SizeOf(const Record& row) const {
    return SizeIn(file.FileEncoding(), row.text) + SizeIn(file.FileEncoding(), row.ending);
}

/** A cut goes to the nearer end of the record on which it falls: a record belongs to the part in
 *  which its middle lies. */
std::uint64_t RowWalk::PartOf(std::uint64_t recordBegin, std::uint64_t recordEnd) const {
    return std::min((recordBegin + recordEnd) * shard->of / (2 * length), shard->of - 1) + 1;
}

bool RowWalk::Read() {
    if (!file.Next()) return false;
    begin = position;
    position += SizeOf(file.Row());
    return true;
}

bool RowWalk::Next() {
    while (Read()) {
        if (!shard) return true;
        const std::uint64_t part = PartOf(begin, position);
        if (part == shard->part) return true;
        if (part > shard->part) return false;
    }
    return false;
}

void RowWalk::GoTo(std::uint64_t end) {
    while (position < end && Read()) continue;
    if (position != end) file.Named([] { throw Failure("is not the file that it was"); });
}

}  // namespace linewright
