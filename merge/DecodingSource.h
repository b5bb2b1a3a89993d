#pragma once

#include <vector>

#include "merge/ByteSource.h"
#include "merge/Encoding.h"

namespace linewright {

/** The bytes of another source, which are text in an encoding, as UTF-8. */
class DecodingSource : public ByteSource {
  public:
    /** The source is borrowed; it is not in UTF-8. */
    DecodingSource(ByteSource& encoded, Encoding encoding);

    /** Throws Failure, which names line and byte, where these are no characters. */
    std::size_t Read(char* block, std::size_t capacity) override;

  private:
    void Decode();
    void CountLines(std::string_view text);
    [[noreturn]] void FailAt(std::string_view bytes) const;

    ByteSource& source;
    Encoding encoding;
    Conversion conversion;
    std::vector<char> encoded;
    std::size_t unfinished = 0;
    std::string decoded;
    std::size_t taken = 0;
    bool isAtEnd = false;
    bool isBroken = false;
    std::uint64_t position = 0;
    std::uint64_t line = 1;
    bool endsWithReturn = false;
};

}  // namespace linewright
