#include "host/runtime/Stream.h"

#include <new>

namespace host {

IPMUnknown* Stream::QueryInterface(PMIID interfaceID) const noexcept {
    if (interfaceID != IID_IPMUNKNOWN) return nullptr;
    CountUp();
    return const_cast<Stream*>(this);
}

int32 Stream::XferByte(uchar* buffer, int32 count) noexcept {
    if (fState != kStreamStateGood || !buffer || count <= 0) return 0;
    try {
        return Move(buffer, count);
    } catch (const std::bad_alloc&) {
        SetState(kStreamStateFailure);
        return 0;
    }
}

int32 Stream::XferInt32(int32& value) noexcept {
    uchar bytes[4];
    auto bits = static_cast<uint32>(value);
    for (uchar& byte : bytes) {
        byte = static_cast<uchar>(bits);
        bits >>= 8;
    }
    const int32 moved = XferByte(bytes, 4);
    if (moved < 4 || !IsReading()) return moved;
    for (int i = 3; i >= 0; --i) bits = bits << 8 | bytes[i];
    value = static_cast<int32>(bits);
    return moved;
}

}  // namespace host
