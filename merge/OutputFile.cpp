#include "merge/OutputFile.h"

#include <fmt/format.h>

#include "host/runtime/Paths.h"
#include "merge/OutputFailure.h"
#include "text/Readable.h"

namespace linewright {

OutputFile::OutputFile(const std::string& fileName)
    : name(fileName), file(host::PathFromUtf8(fileName)) {
    if (!file.Error().empty()) Fail();
}

void OutputFile::Write(std::string_view bytes) {
    if (!file.Write(bytes)) Fail();
}

void OutputFile::Keep() {
    if (!file.Keep()) Fail();
}

void OutputFile::Fail() const {
    throw OutputFailure(fmt::format("{}: {}", Readable(name), file.Error()));
}

}  // namespace linewright
