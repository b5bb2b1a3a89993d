#include "core/ConvertUtf8Data.h"

#include "PMString.h"
#include "core/HostMemory.h"
#include "core/Word.h"
#include "text/LenientUtf8.h"

namespace linewright {

namespace {

bool IsAscii(std::string_view text) {
    std::size_t place = 0;
    for (; place + kWordSize <= text.size(); place += kWordSize)
        if (LoadWord(text.data() + place) & EightTimes(0x80)) return false;
    return !(LoadWord(text.substr(place)) & EightTimes(0x80));
}

PMString KeptCharacters(std::string_view data) {
    LenientUtf8 characters(data);
    PMString text;
    while (const auto character = characters.Next()) {
        if (*character < 256) text.AppendW(*character);
    }
    return text;
}

/** The conversion's result goes into a new block: `size` bytes that `write` writes, and a NUL. */
template <class Write>
bool Replace(DataBlock data, uint32 size, Write write) {
    uint8* const block = AllocConversionBlock(size + 1);
    if (!block) return false;
    write(reinterpret_cast<char*>(block));
    block[size] = 0;
    FreeBlock(data.bytes);
    data.bytes = block;
    data.length = size;
    return true;
}

}  // namespace

bool ConvertUtf8Data(DataBlock data) {
    if (!data.bytes) return true;
    const std::string_view bytes = data.View();
    if (IsAscii(bytes))
        return Replace(data, data.length, [&](char* block) { bytes.copy(block, bytes.size()); });
    const PMString text = KeptCharacters(bytes);
    const int32 kept = text.CharCount();
    return Replace(data, static_cast<uint32>(kept),
                   [&](char* block) { text.GetString(block, kept); });
}

}  // namespace linewright
