#include "merge/OutputFile.h"

#include <fmt/format.h>

#include "host/runtime/Paths.h"
#include "merge/Failure.h"
#include "text/Readable.h"

namespace linewright {

OutputFile::OutputFile(const std::string& fileName)
    : name(fileName), file(host::PathFromUtf8(fileName)) {
    if (!file.Error().empty()) Fail();
}

void OutputFile::Keep() {
    stream.flush();
    if (!file.Keep()) Fail();
}

void OutputFile::Fail() const {
    throw Failure(fmt::format("{}: {}", Readable(name), file.Error()));
}

OutputFile::Buffer::int_type OutputFile::Buffer::overflow(int_type character) {
    if (sync() != 0) return traits_type::eof();
    if (!traits_type::eq_int_type(character, traits_type::eof()))
        return sputc(traits_type::to_char_type(character));
    return traits_type::not_eof(character);
}

int OutputFile::Buffer::sync() {
    const std::string_view gathered(pbase(), static_cast<std::size_t>(pptr() - pbase()));
    setp(piece.data(), piece.data() + piece.size());
    return file.Write(gathered) ? 0 : -1;
}

}  // namespace linewright
