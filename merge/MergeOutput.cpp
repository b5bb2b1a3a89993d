#include "merge/MergeOutput.h"

#include <fmt/format.h>

#include <filesystem>
#include <system_error>

#include "host/runtime/Paths.h"
#include "merge/OutputFailure.h"
#include "text/Readable.h"

namespace linewright {

MergeOutput::MergeOutput(const std::string& fileName, std::ostream& standardOutput,
                         Encoding encoding, bool isLasting)
    : name(fileName) {
    if (name != "-") {
        auto opened = std::make_unique<OutputFile>(name, isLasting);
        file = opened.get();
        sink = std::move(opened);
    } else {
        sink = std::make_unique<StreamSink>(standardOutput);
    }
    writer.emplace(*sink, encoding);
}

void MergeOutput::Keep() {
    writer->Flush();
    if (file) file->Keep();
}

void MergeOutput::GoOnAt(std::uint64_t size) {
    if (file->Found() < size) {
        throw Failure(
            fmt::format("{}: its draft holds less than the journal says; without the "
                        "journal the next run begins anew",
                        Readable(name)));
    }
    file->GoOnAt(size);
}

std::uint64_t MergeOutput::Sync() {
    writer->Flush();
    file->Sync();
    return file->Size();
}

void MergeOutput::KeepWhole(std::uint64_t size) {
    std::error_code error;
    if (file->Found() == size) return file->Keep();
    file->Discard();
    if (std::filesystem::file_size(host::PathFromUtf8(name), error) == size && !error) return;
    throw Failure(
        fmt::format("{}: neither the file nor its draft is what the journal says", Readable(name)));
}

}  // namespace linewright
