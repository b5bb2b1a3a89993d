#include "stream/LineReader.h"

#include <algorithm>
#include <streambuf>

namespace linewright {

LineReader::Result LineReader::Next(std::string& line, std::size_t maxLength) {
    line.clear();
    bool isTooLong = false;
    bool isAny = false;
    const auto result = [&] { return isTooLong ? Result::kTooLong : Result::kLine; };
    while (position < buffer.size() || Refill()) {
        isAny = true;
        const std::size_t end = std::min(buffer.find('\n', position), buffer.size());
        isTooLong = isTooLong || line.size() + (end - position) > maxLength;
        if (!isTooLong) line.append(buffer, position, end - position);
        position = std::min(end + 1, buffer.size());
        if (end < buffer.size()) return result();
    }
    return isAny ? result() : Result::kEnd;
}

/** Takes what the stream has at hand; waits only when that is nothing. */
bool LineReader::Refill() {
    answers.flush();
    std::streambuf& source = *input.rdbuf();
    buffer.clear();
    position = 0;
    if (source.sgetc() == std::streambuf::traits_type::eof()) return false;
    buffer.resize(static_cast<std::size_t>(std::max<std::streamsize>(source.in_avail(), 1)));
    buffer.resize(static_cast<std::size_t>(
        source.sgetn(buffer.data(), static_cast<std::streamsize>(buffer.size()))));
    return !buffer.empty();
}

}  // namespace linewright
