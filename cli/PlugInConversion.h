#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace linewright {

/** The bytes that the plug-in makes of UTF-8 data, and the characters above 255 that it leaves
 *  out. It reads malformed data in its own, lenient way; see ConvertLikePlugIn. */
struct ConvertedData {
    std::string bytes;
    std::vector<char32_t> dropped;
};

/** Foretells the conversion that a request asks for: a lead byte takes as many bytes as it names,
 *  whatever they are; any other byte stands for itself, as do all from an incomplete sequence at
 *  the end on. */
ConvertedData ConvertLikePlugIn(std::string_view utf8);

/** Foretells the trim: spaces at both ends go, unless there is nothing else. */
std::string_view TrimLikePlugIn(std::string_view bytes);

}  // namespace linewright
