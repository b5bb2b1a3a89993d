#include "host/runtime/Stream.h"

namespace host {

IPMUnknown* Stream::QueryInterface(PMIID interfaceID) const noexcept {
    if (interfaceID != IID_IPMUNKNOWN) return nullptr;
    CountUp();
    return const_cast<Stream*>(this);
}

int32 Stream::XferByte(uchar* buffer, int32 count) noexcept {
    if (fState != kStreamStateGood || !buffer || count <= 0) return 0;
    return Move(buffer, count);
}

int32 Stream::XferInt32(int32& value) noexcept {
    uchar bytes[4];
    for (int i = 0; i < 4; ++i) bytes[i] = static_cast<uchar>(static_cast<uint32>(value) >> 8 * i);
    const int32 moved = XferByte(bytes, 4);
    if (moved == 4 && IsReading()) {
        value = static_cast<int32>(bytes[0] | bytes[1] << 8 | bytes[2] << 16 |
                                   static_cast<uint32>(bytes[3]) << 24);
    }
    return moved;
}

}  // namespace host
