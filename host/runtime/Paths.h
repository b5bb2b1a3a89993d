#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace host {

/** A place in the file system by its name in UTF-8, and back. */
inline std::filesystem::path PathFromUtf8(std::string_view name) {
    return std::filesystem::path(std::u8string(name.begin(), name.end()));
}

inline std::string Utf8FromPath(const std::filesystem::path& path) {
    const std::u8string name = path.u8string();
    return {name.begin(), name.end()};
}

}  // namespace host
