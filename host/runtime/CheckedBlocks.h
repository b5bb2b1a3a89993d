#pragma once

#include <deque>
#include <unordered_map>
#include <utility>

#include "BaseType.h"

namespace host {

/** Blocks whose use is watched. Fresh and freed ones are filled with a pattern, and whoever names a
 *  block that is not alive, or writes to a freed one, ends the process. */
class CheckedBlocks {
  public:
    CheckedBlocks() = default;
    CheckedBlocks(const CheckedBlocks&) = delete;
    CheckedBlocks& operator=(const CheckedBlocks&) = delete;
    ~CheckedBlocks();

    /** nullptr when there is no memory. */
    void* Allocate(uint32 size);
    bool Deallocate(void* block);
    bool Resize(void* block, uint32 size);
    uint32 GetSize(const void* block) const { return Find(block).size; }

  private:
    struct Extent {
        uint32 size;
        uint32 capacity;
    };

    const Extent& Find(const void* block) const;
    bool IsFreed(const void* block) const;
    void Quarantine(void* block, uint32 capacity);
    void FreeOldest();

    std::unordered_map<const void*, Extent> fLive;
    /** Freed blocks that still keep their addresses, so that a second freeing is recognised. */
    std::deque<std::pair<void*, uint32>> fFreed;
    std::size_t fFreedBytes = 0;
};

}  // namespace host
