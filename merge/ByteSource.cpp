#include "merge/ByteSource.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "host/runtime/Paths.h"
#include "merge/Failure.h"
#include "text/Readable.h"

namespace linewright {

std::size_t StreamSource::Read(char* block, std::size_t capacity) try {
    if (left) capacity = static_cast<std::size_t>(std::min<std::uint64_t>(capacity, *left));
    if (capacity == 0) return 0;
    std::streambuf& bytes = *stream.rdbuf();
    std::streamsize ready = bytes.in_avail();
    if (ready <= 0) {
        if (isAboutToWait) isAboutToWait();
        if (bytes.sgetc() == std::streambuf::traits_type::eof()) return 0;
        ready = std::max<std::streamsize>(bytes.in_avail(), 1);
    }
    const auto count = static_cast<std::size_t>(
        bytes.sgetn(block, std::min(ready, static_cast<std::streamsize>(capacity))));
    if (left) *left -= count;
    position += count;
    return count;
} catch (const std::ios_base::failure& failure) {
    throw Failure(fmt::format("could not be read to its end: {}", failure.code().message()));
}

std::unique_ptr<std::istream> OpenInput(const std::string& name) {
    const std::filesystem::path path = host::PathFromUtf8(name);
    std::error_code error;
    auto file = std::make_unique<std::ifstream>(path, std::ios::binary);
    if (!*file || std::filesystem::is_directory(path, error)) {
        throw Failure(
            fmt::format("{}: there is no such file, or it cannot be read", Readable(name)));
    }
    return file;
}

std::optional<std::uint64_t> LengthOf(std::istream& stream) {
    std::streambuf& bytes = *stream.rdbuf();
    const std::streamoff here = bytes.pubseekoff(0, std::ios::cur, std::ios::in);
    if (here < 0) return std::nullopt;
    const std::streamoff end = bytes.pubseekoff(0, std::ios::end, std::ios::in);
    if (end < 0 || bytes.pubseekoff(here, std::ios::beg, std::ios::in) < 0) return std::nullopt;
    return static_cast<std::uint64_t>(end - here);
}

}  // namespace linewright
