#pragma once

#include <deque>
#include <unordered_map>

#include "host/runtime/Host.h"

namespace host {

/** The blocks behind the memory service. Fresh and freed blocks are filled with a pattern, and
 *  misuse halts, when the host checks rules; otherwise misuse does nothing. */
class Memory {
  public:
    Memory() = default;
    Memory(const Memory&) = delete;
    Memory& operator=(const Memory&) = delete;
    ~Memory();

    void* Allocate(uint32 size);
    void Deallocate(void* block);
    bool Resize(void* block, uint32 size);
    uint32 GetSize(const void* block) const;

    MemoryCounts Counts() const;

  private:
    struct Extent {
        uint32 size;
        uint32 capacity;
    };
    using Blocks = std::unordered_map<const void*, Extent>;

    /** The block's entry; none, after a halt where rules are checked, if it is not alive. */
    Blocks::iterator Find(const void* block);
    bool IsFreed(const void* block) const;
    void Quarantine(void* block, uint32 capacity);
    void FreeOldest();

    Blocks fLive;
    /** Freed blocks that still keep their addresses, so that a second freeing is recognised. */
    std::deque<std::pair<void*, uint32>> fFreed;
    std::size_t fFreedBytes = 0;
    uint32 fAllocations = 0;
    uint32 fDeallocations = 0;
};

}  // namespace host
