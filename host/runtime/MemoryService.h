#pragma once

#include "CPMUnknown.h"
#include "IMemoryService.h"
#include "host/runtime/Memory.h"

namespace host {

/** The running host's memory as an interface of its session. */
class MemoryService final : public CPMUnknown<IMemoryService> {
  public:
    explicit MemoryService(IPMUnknown* boss);

    void* Allocate(uint32 size) noexcept override { return fMemory.Allocate(size); }
    void* AllocateForConversion(uint32 size) noexcept override { return fMemory.Allocate(size); }
    void Deallocate(void* block) noexcept override { fMemory.Deallocate(block); }
    bool16 Resize(void* block, uint32 size) noexcept override {
        return fMemory.Resize(block, size) ? kTrue : kFalse;
    }
    uint32 GetSize(const void* block) const noexcept override { return fMemory.GetSize(block); }

  private:
    Memory& fMemory;
};

}  // namespace host
