#include "core/ConvertUtf8Data.h"

#include "PMString.h"
#include "core/HostMemory.h"

namespace linewright {

namespace {

struct Lead {
    uint32 continuations;
    uint32 bits;
};

constexpr Lead ReadLead(uint8 byte) {
    if ((byte & 0xE0) == 0xC0) return {1, byte & 0x1Fu};
    if ((byte & 0xF0) == 0xE0) return {2, byte & 0x0Fu};
    if ((byte & 0xF8) == 0xF0) return {3, byte & 0x07u};
    return {0, byte};
}

PMString DecodeUtf8(DataBlock data) {
    PMString text;
    bool isCutShort = false;
    for (uint32 i = 0; i < data.length; ++i) {
        Lead lead = ReadLead(data.bytes[i]);
        isCutShort = isCutShort || lead.continuations >= data.length - i;
        if (isCutShort) lead = {0, data.bytes[i]};
        for (; lead.continuations > 0; --lead.continuations)
            lead.bits = (lead.bits << 6) | (data.bytes[++i] & 0x3Fu);
        if (lead.bits < 256) text.AppendW(lead.bits);
    }
    return text;
}

}  // namespace

bool ConvertUtf8Data(DataBlock data) {
    if (!data.bytes) return true;
    const PMString text = DecodeUtf8(data);
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
