#include "merge/DecodingSource.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstring>

#include "merge/Failure.h"

namespace linewright {

namespace {

constexpr std::size_t kBlock = std::size_t{1} << 16;

}  // namespace

DecodingSource::DecodingSource(ByteSource& encodedSource, Encoding itsEncoding)
    : source(encodedSource),
      encoding(itsEncoding),
      conversion(itsEncoding, Encoding::kUtf8),
      encoded(kBlock) {}

std::size_t DecodingSource::Read(char* block, std::size_t capacity) {
    while (taken == decoded.size()) {
        if (isBroken) FailAt({encoded.data(), unfinished});
        if (isAtEnd) return 0;
        Decode();
    }
    const std::size_t count = std::min(capacity, decoded.size() - taken);
    std::memcpy(block, decoded.data() + taken, count);
    taken += count;
    return count;
}

/** Decodes what comes next, and keeps what is the beginning of a character. What stands before
 *  bytes that are none is decoded first. */
void DecodingSource::Decode() {
    decoded.clear();
    taken = 0;
    const std::size_t count = source.Read(encoded.data() + unfinished, kBlock - unfinished);
    std::string_view bytes(encoded.data(), unfinished + count);
    const std::size_t size = bytes.size();
    isAtEnd = count == 0;
    isBroken = !conversion.Convert(bytes, decoded) || (isAtEnd && !bytes.empty());
    position += size - bytes.size();
    CountLines(decoded);
    unfinished = bytes.size();
    std::memmove(encoded.data(), bytes.data(), unfinished);
}

void DecodingSource::CountLines(std::string_view text) {
    for (const char character : text) {
        if (character == '\r' || (character == '\n' && !endsWithReturn)) ++line;
        endsWithReturn = character == '\r';
    }
}

void DecodingSource::FailAt(std::string_view bytes) const {
    throw Failure(fmt::format("line {}: byte {} of the file, 0x{:02X}, is no character of {}", line,
                              position + 1, static_cast<unsigned char>(bytes.front()),
                              NameOf(encoding)));
}

}  // namespace linewright
