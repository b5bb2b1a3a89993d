#include "cli/PlugInConversion.h"

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

ConvertedData ConvertLikePlugIn(std::string_view utf8) {
    ConvertedData converted;
    bool isCutShort = false;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        Lead lead = LeadOf(byte);
        isCutShort = isCutShort || lead.continuations >= utf8.size() - i;
        if (isCutShort) lead = {0, byte};
        for (; lead.continuations > 0; --lead.continuations) {
            lead.bits = (lead.bits << 6) | (static_cast<unsigned char>(utf8[++i]) & 0x3FU);
        }
        if (lead.bits < 256) {
            converted.bytes += static_cast<char>(lead.bits);
        } else {
            converted.dropped.push_back(lead.bits);
        }
    }
    return converted;
}

std::string_view TrimLikePlugIn(std::string_view bytes) {
    const std::size_t first = bytes.find_first_not_of(' ');
    if (first == std::string_view::npos) return bytes;
    return bytes.substr(first, bytes.find_last_not_of(' ') - first + 1);
}

}  // namespace linewright
