#include "host/runtime/MarkedBlocks.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>

namespace host {

namespace {

/** What stands in front of a block, as large as keeps the block aligned for everything. */
struct alignas(std::max_align_t) Header {
    uint32 size;
    uint32 capacity;
    std::uintptr_t mark;
};
static_assert(sizeof(Header) == 16);

/** No two blocks have the same mark, so a copy of one is none. */
std::uintptr_t MarkOf(const void* block) {
    return reinterpret_cast<std::uintptr_t>(block) ^ 0x4C57'5242'4C4F'434B;
}

Header* Find(void* block) {
    Header* const header = static_cast<Header*>(block) - 1;
    return header->mark == MarkOf(block) ? header : nullptr;
}

const Header* Find(const void* block) {
    return Find(const_cast<void*>(block));
}

}  // namespace

void* MarkedBlocks::Allocate(uint32 size) {
    const uint32 capacity = std::max<uint32>(size, 1);
    void* const memory = std::malloc(sizeof(Header) + capacity);
    if (!memory) return nullptr;
    void* const block = static_cast<Header*>(memory) + 1;
    ::new (memory) Header{size, capacity, MarkOf(block)};
    return block;
}

bool MarkedBlocks::Deallocate(void* block) {
    Header* const header = Find(block);
    if (!header) return false;
    header->mark = 0;
    std::free(header);
    return true;
}

bool MarkedBlocks::Resize(void* block, uint32 size) {
    Header* const header = Find(block);
    if (!header || size > header->capacity) return false;
    header->size = size;
    return true;
}

uint32 MarkedBlocks::GetSize(const void* block) const {
    const Header* const header = Find(block);
    return header ? header->size : 0;
}

}  // namespace host
