#include "host/runtime/Memory.h"

#include "host/runtime/Faults.h"
#include "host/runtime/Thread.h"

namespace host {

void* Memory::Allocate(uint32 size) {
    CheckThread();
    void* const block = AllocationFails() ? nullptr : fBlocks.Allocate(size);
    if (block) ++fAllocations;
    return block;
}

void Memory::Deallocate(void* block) {
    CheckThread();
    if (block && fBlocks.Deallocate(block)) ++fDeallocations;
}

MemoryCounts Memory::Counts() const {
    return {fAllocations, fDeallocations, fAllocations - fDeallocations};
}

}  // namespace host
