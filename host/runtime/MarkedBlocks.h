#pragma once

#include "BaseType.h"

namespace host {

/** Blocks that carry their sizes and a mark in front of them. What carries no mark is no block of
 *  the host's, or one no more: nothing is done to it. Blocks still alive at the end stay. */
class MarkedBlocks {
  public:
    /** nullptr when there is no memory. */
    void* Allocate(uint32 size);
    bool Deallocate(void* block);
    bool Resize(void* block, uint32 size);
    uint32 GetSize(const void* block) const;
};

}  // namespace host
