#include "host/runtime/CheckedBlocks.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>

#include "host/runtime/Halt.h"
#include "host/runtime/Platform.h"

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

CheckedBlocks::~CheckedBlocks() {
    while (!fFreed.empty()) FreeOldest();
    for (const auto& [block, extent] : fLive) std::free(const_cast<void*>(block));
}

void* CheckedBlocks::Allocate(uint32 size) try {
    const uint32 capacity = std::max<uint32>(size, 1);
    std::unique_ptr<void, decltype(&std::free)> block(std::malloc(capacity), std::free);
    if (!block) return nullptr;
    std::memset(block.get(), kFreshPattern, capacity);
    fLive[block.get()] = {size, capacity};
    return block.release();
} catch (const std::bad_alloc&) {
    return nullptr;
}

bool CheckedBlocks::Deallocate(void* block) {
    const uint32 capacity = Find(block).capacity;
    fLive.erase(block);
    Quarantine(block, capacity);
    return true;
}

bool CheckedBlocks::Resize(void* block, uint32 size) {
    const Extent extent = Find(block);
    if (size > extent.capacity) return false;
    fLive[block].size = size;
    return true;
}

const CheckedBlocks::Extent& CheckedBlocks::Find(const void* block) const {
    const auto found = fLive.find(block);
    if (found == fLive.end()) {
        Halt("memory block " + Address(block) +
             (IsFreed(block) ? " is used after it was freed (double free?)"
                             : " does not come from the memory service"));
    }
    return found->second;
}

bool CheckedBlocks::IsFreed(const void* block) const {
    return std::any_of(fFreed.begin(), fFreed.end(),
                       [block](const auto& freed) { return freed.first == block; });
}

void CheckedBlocks::Quarantine(void* block, uint32 capacity) {
    std::memset(block, kFreedPattern, capacity);
    ForbidUse(block, capacity);
    fFreed.emplace_back(block, capacity);
    fFreedBytes += capacity;
    while (fFreed.size() > kMaxFreedBlocks || fFreedBytes > kMaxFreedBytes) FreeOldest();
}

void CheckedBlocks::FreeOldest() {
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
