#include "core/HostMemory.h"

#include "IMemoryService.h"
#include "ISession.h"

namespace linewright {

namespace {

constinit const MemoryScope* innermost = nullptr;

IMemoryService* QueryService() {
    const ISession* const session = GetExecutionContextSession();
    return session ? static_cast<IMemoryService*>(session->QueryInterface(IID_IMEMORYSERVICE))
                   : nullptr;
}

}  // namespace

MemoryScope::MemoryScope() : outer(innermost), service(outer ? outer->service : QueryService()) {
    innermost = this;
}

MemoryScope::~MemoryScope() {
    innermost = outer;
    if (!outer && service) service->Release();
}

uint8* AllocBlock(uint32 size) {
    const MemoryScope memory;
    return memory.Service() ? static_cast<uint8*>(memory.Service()->Allocate(size)) : nullptr;
}

uint8* AllocConversionBlock(uint32 size) {
    const MemoryScope memory;
    return memory.Service() ? static_cast<uint8*>(memory.Service()->AllocateForConversion(size))
                            : nullptr;
}

void FreeBlock(void* block) {
    const MemoryScope memory;
    if (memory.Service() && block) memory.Service()->Deallocate(block);
}

bool ResizeBlock(void* block, uint32 size) {
    const MemoryScope memory;
    return memory.Service() && block && memory.Service()->Resize(block, size);
}

uint32 BlockSize(const void* block) {
    const MemoryScope memory;
    return memory.Service() && block ? memory.Service()->GetSize(block) : 0;
}

}  // namespace linewright
