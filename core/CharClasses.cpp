#include "core/CharClasses.h"

#include <algorithm>

namespace linewright {

int32 IsInList(int32 value, const int32* list, int32 count) {
    if (!list || count < 1) return 0;
    return std::find(list, list + count, value) != list + count;
}

int32 CheckCharClasses(const uint8* bytes, int32 length, int32 classes, const char* extra) {
    if (length < 1) return 1;
    return std::all_of(bytes, bytes + length,
                       [=](uint8 byte) { return IsOfClass(byte, classes, extra); });
}

}  // namespace linewright
