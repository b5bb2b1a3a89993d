#pragma once

#include <string>

#include "PMString.h"

namespace linewright {

/** A host string's characters as bytes; those above 255 as "?". */
inline std::string Latin1(const PMString& string) {
    std::string text(static_cast<std::size_t>(string.CharCount()), '\0');
    string.GetString(text.data(), string.CharCount());
    return text;
}

inline PMString HostString(const std::string& bytes) {
    PMString string;
    string.SetString(bytes.data(), static_cast<int32>(bytes.size()));
    return string;
}

}  // namespace linewright
