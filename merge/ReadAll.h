#pragma once

#include <istream>
#include <iterator>
#include <string>

namespace linewright {

/** What is left of a stream. */
inline std::string ReadAll(std::istream& input) {
    return {std::istreambuf_iterator<char>(input), std::istreambuf_iterator<char>()};
}

}  // namespace linewright
