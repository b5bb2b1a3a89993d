#include "host/runtime/MemoryStream.h"

#include <algorithm>

namespace host {

int32 MemoryStream::Move(uchar* buffer, int32 count) {
    if (!fIsReading) {
        fBytes.insert(fBytes.end(), buffer, buffer + count);
        return count;
    }
    const auto left = static_cast<int32>(fBytes.size() - fPosition);
    const int32 moved = std::min(count, left);
    std::copy_n(fBytes.data() + fPosition, moved, buffer);
    fPosition += static_cast<std::size_t>(moved);
    if (moved < count) SetState(kStreamStateEOF);
    return moved;
}

}  // namespace host
