#include "core/ConvertUtf8Data.h"

#include "PMString.h"
#include "core/HostMemory.h"
#include "text/LenientUtf8.h"

namespace linewright {

namespace {

PMString KeptCharacters(DataBlock data) {
    LenientUtf8 characters({reinterpret_cast<const char*>(data.bytes), data.length});
    PMString text;
    while (const auto character = characters.Next()) {
        if (*character < 256) text.AppendW(*character);
    }
    return text;
}

}  // namespace

bool ConvertUtf8Data(DataBlock data) {
    if (!data.bytes) return true;
    const PMString text = KeptCharacters(data);
    const auto kept = static_cast<uint32>(text.CharCount());
    uint8* const block = AllocConversionBlock(kept + 1);
    if (!block) return false;
    text.GetString(reinterpret_cast<char*>(block), text.CharCount());
    block[kept] = 0;
    FreeBlock(data.bytes);
    data.bytes = block;
    data.length = kept;
    return true;
}

}  // namespace linewright
