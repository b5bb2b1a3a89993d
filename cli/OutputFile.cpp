#include "cli/OutputFile.h"

#include <fmt/format.h>

#include <system_error>

#include "cli/Failure.h"
#include "host/runtime/Paths.h"
#include "text/Readable.h"

namespace linewright {

namespace fs = std::filesystem;

namespace {

/** The file itself where the name is a link to one. */
fs::path TargetOf(const std::string& name) {
    const fs::path path = host::PathFromUtf8(name);
    std::error_code error;
    fs::path real = fs::canonical(path, error);
    return error ? path : real;
}

fs::path BesidesOf(const fs::path& target) {
    std::error_code error;
    if (fs::exists(target, error) && !fs::is_regular_file(target, error)) return target;
    fs::path beside = target;
    beside += ".part";
    return beside;
}

}  // namespace

OutputFile::OutputFile(const std::string& fileName)
    : name(fileName), target(TargetOf(fileName)), written(BesidesOf(target)) {
    stream.open(written, std::ios::binary | std::ios::trunc);
    if (!stream) throw Failure(fmt::format("{}: cannot be written", Readable(name)));
}

OutputFile::~OutputFile() {
    if (isKept || written == target) return;
    stream.close();
    std::error_code ignored;
    fs::remove(written, ignored);
}

void OutputFile::Keep() {
    stream.close();
    std::error_code error;
    if (!stream) throw Failure(fmt::format("{}: could not be written to its end", Readable(name)));
    if (written != target) fs::rename(written, target, error);
    if (error) throw Failure(fmt::format("{}: {}", Readable(name), error.message()));
    isKept = true;
}

}  // namespace linewright
