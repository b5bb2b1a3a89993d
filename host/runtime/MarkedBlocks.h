#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>

#include "BaseType.h"

namespace host {

/** Blocks that carry their sizes and a mark in front of them. What carries no mark is no block of
 *  the host's, or one no more: nothing is done to it. Blocks still alive at the end stay. */
class MarkedBlocks {
  public:
    /** nullptr when there is no memory. */
    void* Allocate(uint32 size) {
        const uint32 capacity = std::max<uint32>(size, 1);
        void* const memory = std::malloc(sizeof(Header) + capacity);
        if (!memory) return nullptr;
        void* const block = static_cast<Header*>(memory) + 1;
        ::new (memory) Header{size, capacity, MarkOf(block)};
        return block;
    }
    bool Deallocate(void* block) {
        Header* const header = Find(block);
        if (!header) return false;
        header->mark = 0;
        std::free(header);
        return true;
    }
    bool Resize(void* block, uint32 size) {
        Header* const header = Find(block);
        if (!header || size > header->capacity) return false;
        header->size = size;
        return true;
    }
    uint32 GetSize(const void* block) const {
        const Header* const header = Find(const_cast<void*>(block));
        return header ? header->size : 0;
    }

  private:
    /** As large as keeps the block behind it aligned for everything. */
    struct alignas(std::max_align_t) Header {
        uint32 size;
        uint32 capacity;
        std::uintptr_t mark;
    };

    /** No two blocks have the same mark, so a copy of one is none. */
    static std::uintptr_t MarkOf(const void* block) {
        constexpr auto kMark = static_cast<std::uintptr_t>(0x4C57'5242'4C4F'434B);
        return reinterpret_cast<std::uintptr_t>(block) ^ kMark;
    }
    static Header* Find(void* block) {
        Header* const header = static_cast<Header*>(block) - 1;
        return header->mark == MarkOf(block) ? header : nullptr;
    }
};

}  // namespace host
