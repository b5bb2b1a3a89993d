#pragma once

#include "BaseType.h"

class IMemoryService;

namespace linewright {

// Blocks from the host's memory service. Without a session or its service nothing is allocated
// and the other operations do nothing. A block belongs to whoever holds it. Main thread only.

/** Holds the memory service. Each operation below asks the host for it, unless somebody up the
 * stack holds it already. */
class MemoryScope {
  public:
    MemoryScope();
    MemoryScope(const MemoryScope&) = delete;
    MemoryScope& operator=(const MemoryScope&) = delete;
    ~MemoryScope();

    /** The service; nullptr without a session or its service. */
    IMemoryService* Service() const { return service; }

  private:
    const MemoryScope* outer;
    IMemoryService* service;
};

/** A new block, valid also for size 0; nullptr when there is no memory. */
uint8* AllocBlock(uint32 size);
/** The service's second entry, for conversions; its blocks are freed like all others. */
uint8* AllocConversionBlock(uint32 size);
/** Gives a block back; nothing for nullptr. */
void FreeBlock(void* block);
/** Changes a block's size in place; false, and no change, when it cannot grow there. */
bool ResizeBlock(void* block, uint32 size);
/** The size of a block in bytes; 0 for nullptr. Service: no caller of our own. */
uint32 BlockSize(const void* block);

}  // namespace linewright
