#pragma once

#include "IPMUnknown.h"

constexpr PMIID IID_IMEMORYSERVICE = 0xFA500;

/** The host's memory service, an interface of the session. All blocks that pass between plug-ins
 *  come from it and go back to it. Main thread only. */
class IMemoryService : public IPMUnknown {
  public:
    enum { kDefaultIID = IID_IMEMORYSERVICE };

    /** A new block, valid also for size 0; nullptr when there is no memory. */
    virtual void* Allocate(uint32 size) = 0;
    /** A new block for a conversion; nullptr when there is no memory. */
    virtual void* AllocateForConversion(uint32 size) = 0;
    /** Gives a block back; nothing for nullptr. */
    virtual void Deallocate(void* block) = 0;
    /** Changes a block's size in place; kFalse, and no change, when it cannot grow there. */
    virtual bool16 Resize(void* block, uint32 size) = 0;
    /** The size a block was allocated with or last resized to; 0 for nullptr. */
    virtual uint32 GetSize(const void* block) const = 0;
};
