#pragma once

#include <string_view>

#include "BaseType.h"

namespace linewright {

/** The caller's barcode data by reference: a block from the host's memory service, not
 *  NUL-terminated, and its length in bytes. The caller owns the block before and after; an
 *  operation that replaces it allocates the new block before it frees the old one and, when it
 *  cannot, changes nothing and returns false. */
struct DataBlock {
    uint8*& bytes;
    uint32& length;

    std::string_view View() const { return {reinterpret_cast<const char*>(bytes), length}; }
};

/** Replaces the data by a text, in a block of the text's length or of `blockSize` where given.
 *  The text may be a part of the data. */
bool ReplaceData(DataBlock data, std::string_view text);
bool ReplaceData(DataBlock data, std::string_view text, uint32 blockSize);

/** ReplaceData as the last step of an encoder: its status, or kInternalError without memory. */
int16 FinishWith(DataBlock data, std::string_view text, int16 status);

/** Removes leading and trailing spaces, of which there are some. Data made only of spaces stays as
 * it is. */
bool DropSpaces(DataBlock data);
/** The same, whether or not there are any. */
inline bool TrimSpaces(DataBlock data) {
    const std::string_view text = data.View();
    return (!text.starts_with(' ') && !text.ends_with(' ')) || DropSpaces(data);
}

// Service: no caller of our own.

/** Puts fill bytes in front until there are `target` bytes. */
bool PadLeft(DataBlock data, int32 target, uint8 fill);
/** Puts one fill byte in front when the length is not odd (`wantOdd` non-zero) or even (0). */
bool PadToParity(DataBlock data, int16 wantOdd, uint8 fill);
/** Drops the last byte, whatever it is, of data of exactly n + 1 bytes. */
bool DropExtraLastChar(DataBlock data, uint32 n);

}  // namespace linewright
