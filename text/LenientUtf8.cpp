#include "text/LenientUtf8.h"

namespace linewright {

namespace {

struct Lead {
    std::size_t continuations;
    char32_t bits;
};

Lead LeadOf(unsigned char byte) {
    if ((byte & 0xE0) == 0xC0) return {1, byte & 0x1FU};
    if ((byte & 0xF0) == 0xE0) return {2, byte & 0x0FU};
    if ((byte & 0xF8) == 0xF0) return {3, byte & 0x07U};
    return {0, byte};
}

}  // namespace

std::optional<char32_t> LenientUtf8::Next() {
    if (rest.empty()) return std::nullopt;
    const auto byteAt = [this](std::size_t at) { return static_cast<unsigned char>(rest[at]); };
    Lead lead = LeadOf(byteAt(0));
    isCutShort = isCutShort || lead.continuations >= rest.size();
    if (isCutShort) lead = {0, byteAt(0)};
    char32_t character = lead.bits;
    for (std::size_t i = 1; i <= lead.continuations; ++i) {
        character = character << 6 | (byteAt(i) & 0x3FU);
    }
    rest.remove_prefix(1 + lead.continuations);
    return character;
}

}  // namespace linewright
