#include "merge/BatchFile.h"

#include <fmt/format.h>

#include <filesystem>
#include <fstream>
#include <system_error>

#include "host/runtime/Paths.h"
#include "merge/Failure.h"
#include "merge/ReadAll.h"
#include "text/Readable.h"

namespace linewright {

std::string ReadInput(const std::string& name, std::istream& standardInput) {
    if (name == "-") return ReadAll(standardInput);
    const std::filesystem::path path = host::PathFromUtf8(name);
    std::error_code error;
    std::ifstream file(path, std::ios::binary);
    if (!file || std::filesystem::is_directory(path, error)) {
        throw Failure(
            fmt::format("{}: there is no such file, or it cannot be read", Readable(name)));
    }
    return ReadAll(file);
}

BatchFile::BatchFile(std::string_view text, const std::string& name, const BatchOptions& options) {
    try {
        if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF")) {
            throw Failure("the file is UTF-16; save it as CSV in UTF-8");
        }
        const char delimiter = options.delimiter.value_or(DetectCsvDelimiter(text));
        file = ReadCsv(text, delimiter);
        if (file.records.empty() || file.records.front().IsBlank()) {
            throw Failure("there is no header row");
        }
        columns.emplace(file.records.front(), options, delimiter);
    } catch (const Failure& failure) {
        throw Failure(fmt::format("{}: {}", Readable(name), failure.what()));
    }
}

}  // namespace linewright
