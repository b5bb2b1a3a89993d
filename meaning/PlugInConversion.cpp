#include "meaning/PlugInConversion.h"

#include "text/LenientUtf8.h"

namespace linewright {

ConvertedData ConvertLikePlugIn(std::string_view utf8) {
    ConvertedData converted;
    LenientUtf8 characters(utf8);
    while (const auto character = characters.Next()) {
        if (*character < 256) {
            converted.bytes += static_cast<char>(*character);
        } else {
            converted.dropped.push_back(*character);
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
