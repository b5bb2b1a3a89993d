#include "core/DataBlock.h"

#include <algorithm>

#include "core/HostMemory.h"
#include "core/Status.h"

namespace linewright {

namespace {

/** Puts a new block of `blockSize` bytes in place of the data: fill bytes, then the text, which may
 *  be a part of the data. */
bool Rebuild(DataBlock data, uint32 fillCount, uint8 fill, std::string_view text,
             uint32 blockSize) {
    uint8* const block = AllocBlock(blockSize);
    if (!block) return false;
    std::fill_n(block, fillCount, fill);
    text.copy(reinterpret_cast<char*>(block) + fillCount, text.size());
    FreeBlock(data.bytes);
    data.bytes = block;
    data.length = fillCount + static_cast<uint32>(text.size());
    return true;
}

bool PutInFront(DataBlock data, uint32 fillCount, uint8 fill) {
    return Rebuild(data, fillCount, fill, data.View(), fillCount + data.length);
}

}  // namespace

bool ReplaceData(DataBlock data, std::string_view text, uint32 blockSize) {
    return Rebuild(data, 0, 0, text, blockSize);
}

bool ReplaceData(DataBlock data, std::string_view text) {
    return ReplaceData(data, text, static_cast<uint32>(text.size()));
}

int16 FinishWith(DataBlock data, std::string_view text, int16 status) {
    return ReplaceData(data, text) ? status : kInternalError;
}

bool PadLeft(DataBlock data, int32 target, uint8 fill) {
    if (target < 0 || data.length >= static_cast<uint32>(target)) return true;
    return PutInFront(data, static_cast<uint32>(target) - data.length, fill);
}

bool PadToParity(DataBlock data, int16 wantOdd, uint8 fill) {
    const bool isOdd = data.length % 2 == 1;
    return isOdd == (wantOdd != 0) || PutInFront(data, 1, fill);
}

bool DropExtraLastChar(DataBlock data, uint32 n) {
    if (data.length == 0 || data.length - 1 != n) return true;
    if (!ResizeBlock(data.bytes, n)) return false;
    data.length = n;
    return true;
}

bool DropSpaces(DataBlock data) {
    const std::string_view text = data.View();
    const auto start = text.find_first_not_of(' ');
    if (start == std::string_view::npos) return true;
    const auto end = text.find_last_not_of(' ');
    return ReplaceData(data, text.substr(start, end - start + 1));
}

}  // namespace linewright
