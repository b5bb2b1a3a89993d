#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace linewright {

/** The bytes that the plug-in makes of UTF-8 data, and the characters above 255 that it leaves
 *  out. */
struct ConvertedData {
    std::string bytes;
    std::vector<char32_t> dropped;
};

/** Foretells the conversion that a request asks for, see LenientUtf8. */
ConvertedData ConvertLikePlugIn(std::string_view utf8);

/** Foretells the trim: spaces at both ends go, unless there is nothing else. */
std::string_view TrimLikePlugIn(std::string_view bytes);

}  // namespace linewright
