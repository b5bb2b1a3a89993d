#pragma once

#include <type_traits>

#include "host/runtime/CheckedBlocks.h"
#include "host/runtime/Halt.h"
#include "host/runtime/Host.h"
#include "host/runtime/MarkedBlocks.h"

namespace host {

/** The blocks behind the memory service. Misuse of a block halts when the host checks rules;
 *  otherwise it does nothing. */
class Memory {
  public:
    void* Allocate(uint32 size);
    void Deallocate(void* block);
    bool Resize(void* block, uint32 size) { return block && fBlocks.Resize(block, size); }
    uint32 GetSize(const void* block) const { return block ? fBlocks.GetSize(block) : 0; }

    MemoryCounts Counts() const;

  private:
    std::conditional_t<kChecksRules, CheckedBlocks, MarkedBlocks> fBlocks;
    uint32 fAllocations = 0;
    uint32 fDeallocations = 0;
};

}  // namespace host
