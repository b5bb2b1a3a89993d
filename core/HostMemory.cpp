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

/** Calls `use` with the service that is held, or with one of its own. */
template <class Use>
auto WithService(Use use) {
    if (innermost) return use(innermost->Service());
    const MemoryScope memory;
    return use(memory.Service());
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
    return WithService([=](IMemoryService* service) {
        return service ? static_cast<uint8*>(service->Allocate(size)) : nullptr;
    });
}

uint8* AllocConversionBlock(uint32 size) {
    return WithService([=](IMemoryService* service) {
        return service ? static_cast<uint8*>(service->AllocateForConversion(size)) : nullptr;
    });
}

void FreeBlock(void* block) {
    WithService([=](IMemoryService* service) {
        if (service && block) service->Deallocate(block);
    });
}

bool ResizeBlock(void* block, uint32 size) {
    return WithService(
        [=](IMemoryService* service) { return service && block && service->Resize(block, size); });
}

uint32 BlockSize(const void* block) {
    return WithService(
        [=](IMemoryService* service) { return service && block ? service->GetSize(block) : 0; });
}

}  // namespace linewright
