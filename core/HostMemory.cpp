#include "core/HostMemory.h"

#include "IMemoryService.h"
#include "ISession.h"
#include "InterfacePtr.h"

namespace linewright {

namespace {

class Memory : public InterfacePtr<IMemoryService> {
  public:
    Memory() : InterfacePtr(GetExecutionContextSession(), UseDefaultIID()) {}
};

}  // namespace

uint8* AllocBlock(uint32 size) {
    const Memory memory;
    return memory ? static_cast<uint8*>(memory->Allocate(size)) : nullptr;
}

uint8* AllocConversionBlock(uint32 size) {
    const Memory memory;
    return memory ? static_cast<uint8*>(memory->AllocateForConversion(size)) : nullptr;
}

void FreeBlock(void* block) {
    const Memory memory;
    if (memory && block) memory->Deallocate(block);
}

bool ResizeBlock(void* block, uint32 size) {
    const Memory memory;
    return memory && block && memory->Resize(block, size);
}

uint32 BlockSize(const void* block) {
    const Memory memory;
    return memory && block ? memory->GetSize(block) : 0;
}

}  // namespace linewright
