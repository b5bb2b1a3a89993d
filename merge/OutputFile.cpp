#include "merge/OutputFile.h"

#include <fmt/format.h>

#include "host/runtime/Paths.h"
#include "merge/OutputFailure.h"
#include "text/Readable.h"

namespace linewright {

OutputFile::OutputFile(const std::string& fileName, bool isLasting)
    : name(fileName),
      file(host::PathFromUtf8(fileName), {.writesDevices = !isLasting, .isLasting = isLasting}) {
    Must(file.Error().empty());
}

void OutputFile::Write(std::string_view bytes) {
    Must(file.Write(bytes));
    written += bytes.size();
}

void OutputFile::Keep() {
    Must(file.Keep());
}

void OutputFile::GoOnAt(std::uint64_t size) {
    Must(file.Cut(size));
    written = size;
}

void OutputFile::Sync() {
    Must(file.Sync());
}

void OutputFile::Must(bool isDone) const {
    if (!isDone) throw OutputFailure(fmt::format("{}: {}", Readable(name), file.Error()));
}

}  // namespace linewright
