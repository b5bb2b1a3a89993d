#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace linewright {

/**
 * Reads UTF-8 as the plug-in does, which refuses nothing. A lead byte takes as many bytes as it
 * names, of which the low six bits count, whatever the upper two are. A byte that begins no
 * sequence stands for itself, as do all bytes from a sequence on that the end cuts short. So
 * overlong forms, surrogates and values up to U+1FFFFF come out as they are written. Neither
 * allocates nor throws; the bytes stay the caller's.
 */
class LenientUtf8 {
  public:
    explicit LenientUtf8(std::string_view bytes) : rest(bytes) {}

    /** The next code point; none at the end. */
    std::optional<char32_t> Next();

  private:
    std::string_view rest;
    bool isCutShort = false;
};

}  // namespace linewright
