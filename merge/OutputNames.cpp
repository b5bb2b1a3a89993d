#include "merge/OutputNames.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "host/runtime/Paths.h"
#include "merge/Failure.h"
#include "text/Readable.h"

namespace linewright {

namespace {

/** What is written last would take the place of the other one. */
void RequireDifferent(const std::vector<std::string>& outputs) {
    for (auto name = outputs.begin(); name != outputs.end(); ++name) {
        if (!name->empty() && std::find(name + 1, outputs.end(), *name) != outputs.end()) {
            throw Failure(
                fmt::format("{}: two outputs cannot have the same name", Readable(*name)));
        }
    }
}

/** A file that is its own output is not there any more when a run goes on. */
void RequireResumable(const MergeFiles& files, const MergeOptions& options) {
    if (files.output == "-" || options.rejects == "-") {
        throw Failure("--resume writes into files, not to standard output; -o OUT names one");
    }
    std::error_code error;
    if (std::filesystem::equivalent(host::PathFromUtf8(files.input),
                                    host::PathFromUtf8(files.output), error)) {
        throw Failure(fmt::format("{}: --resume needs an output that is not the input",
                                  Readable(files.output)));
    }
}

}  // namespace

void RequireOutputs(const MergeFiles& files, const MergeOptions& options) {
    RequireDifferent({files.output, options.rejects, options.summary});
    if (options.isResumed) RequireResumable(files, options);
}

}  // namespace linewright
