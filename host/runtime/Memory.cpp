#include "host/runtime/Memory.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>

#include "host/runtime/Faults.h"
#include "host/runtime/Halt.h"
#include "host/runtime/Platform.h"
#include "host/runtime/Thread.h"

namespace host {

namespace {

constexpr uint8 kFreshPattern = 0xCD;
constexpr uint8 kFreedPattern = 0xDD;
constexpr std::size_t kMaxFreedBlocks = 1024;
constexpr std::size_t kMaxFreedBytes = 4 << 20;

std::string Address(const void* block) {
    char text[32];
    std::snprintf(text, sizeof text, "%p", block);
    return text;
}

}  // namespace

Memory::~Memory() {
    while (!fFreed.empty()) FreeOldest();
    for (const auto& [block, extent] : fLive) std::free(const_cast<void*>(block));
}

void* Memory::Allocate(uint32 size) try {
    CheckThread();
    if (AllocationFails()) return nullptr;
    const uint32 capacity = std::max<uint32>(size, 1);
    std::unique_ptr<void, decltype(&std::free)> block(std::malloc(capacity), std::free);
    if (!block) return nullptr;
    if (kChecksRules) std::memset(block.get(), kFreshPattern, capacity);
    fLive[block.get()] = {size, capacity};
    ++fAllocations;
    return block.release();
} catch (const std::bad_alloc&) {
    return nullptr;
}

void Memory::Deallocate(void* block) {
    if (!block) return;
    const auto found = Find(block);
    if (found == fLive.end()) return;
    const uint32 capacity = found->second.capacity;
    fLive.erase(found);
    ++fDeallocations;
    if (kChecksRules) {
        Quarantine(block, capacity);
    } else {
        std::free(block);
    }
}

bool Memory::Resize(void* block, uint32 size) {
    if (!block) return false;
    const auto found = Find(block);
    if (found == fLive.end() || size > found->second.capacity) return false;
    found->second.size = size;
    return true;
}

uint32 Memory::GetSize(const void* block) const {
    if (!block) return 0;
    const auto found = const_cast<Memory*>(this)->Find(block);
    return found == fLive.end() ? 0 : found->second.size;
}

MemoryCounts Memory::Counts() const {
    return {fAllocations, fDeallocations, static_cast<uint32>(fLive.size())};
}

Memory::Blocks::iterator Memory::Find(const void* block) {
    CheckThread();
    const auto found = fLive.find(block);
    if (found == fLive.end() && kChecksRules) {
        Halt("memory block " + Address(block) +
             (IsFreed(block) ? " is used after it was freed (double free?)"
                             : " does not come from the memory service"));
    }
    return found;
}

bool Memory::IsFreed(const void* block) const {
    return std::any_of(fFreed.begin(), fFreed.end(),
                       [block](const auto& freed) { return freed.first == block; });
}

void Memory::Quarantine(void* block, uint32 capacity) {
    std::memset(block, kFreedPattern, capacity);
    ForbidUse(block, capacity);
    fFreed.emplace_back(block, capacity);
    fFreedBytes += capacity;
    while (fFreed.size() > kMaxFreedBlocks || fFreedBytes > kMaxFreedBytes) FreeOldest();
}

void Memory::FreeOldest() {
    const auto [block, capacity] = fFreed.front();
    AllowUse(block, capacity);
    const uint8* const bytes = static_cast<const uint8*>(block);
    if (!std::all_of(bytes, bytes + capacity, [](uint8 byte) { return byte == kFreedPattern; })) {
        Halt("memory block " + Address(block) + " was written to after it was freed");
    }
    std::free(block);
    fFreed.pop_front();
    fFreedBytes -= capacity;
}

}  // namespace host
