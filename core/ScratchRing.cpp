#include "core/ScratchRing.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace linewright {

namespace {

constexpr std::size_t kSlots = 64;
constexpr std::size_t kSlotSize = 257;

struct ScratchRing {
    std::array<std::array<char, kSlotSize>, kSlots> slots;
    std::size_t index;
};
constinit ScratchRing ring{};

}  // namespace

char* MidString(const char* text, int32 position, int32 count) {
    ring.index = (ring.index + 1) % kSlots;
    char* const slot = ring.slots[ring.index].data();
    const auto limit =
        static_cast<std::size_t>(std::clamp<int32>(count, 0, static_cast<int32>(kSlotSize) - 1));
    if (position >= 1 && !std::memchr(text, 0, static_cast<std::size_t>(position))) {
        std::strncpy(slot, text + position - 1, limit);
    } else {
        slot[0] = 0;
    }
    slot[limit] = 0;
    return slot;
}

}  // namespace linewright
