#include "merge/Journal.h"

#include <fmt/format.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <optional>
#include <string_view>

#include "host/runtime/Paths.h"
#include "merge/Failure.h"
#include "text/Readable.h"

namespace linewright {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kSumDigits = 16;

/** FNV-1a of 64 bits. */
std::string SumOf(std::string_view text) {
    std::uint64_t sum = 0xCBF29CE484222325;
    for (const char byte : text) {
        sum ^= static_cast<unsigned char>(byte);
        sum *= 0x100000001B3;
    }
    return fmt::format("{:016x}", sum);
}

std::string JournalName(const std::string& output) {
    const fs::path path = host::PathFromUtf8(output);
    fs::path journal = path.parent_path() / ".";
    journal += path.filename();
    return host::Utf8FromPath(journal += ".linewright-journal");
}

std::string MergeOf(const std::string& input, const std::string& circumstances) {
    std::error_code error;
    const fs::path path = host::PathFromUtf8(input);
    const bool isFile = input != "-" && fs::is_regular_file(path, error);
    const std::uint64_t size = isFile ? fs::file_size(path, error) : 0;
    const fs::file_time_type time = fs::last_write_time(path, error);
    if (!isFile || error) {
        throw Failure(
            fmt::format("{}: --resume needs a file, which can be read again", Readable(input)));
    }
    const nlohmann::ordered_json merge{{"size", size},
                                       {"time", time.time_since_epoch().count()},
                                       {"circumstances", circumstances}};
    return merge.dump(-1, ' ', true, nlohmann::json::error_handler_t::replace);
}

/** Takes the next line with a right sum off a journal. */
std::optional<std::string> TakeLine(std::string_view& text) {
    const std::size_t end = text.find('\n');
    if (end == std::string_view::npos || end < kSumDigits + 1) return std::nullopt;
    const std::string line(text.substr(kSumDigits + 1, end - kSumDigits - 1));
    if (text.substr(0, kSumDigits) != SumOf(line)) return std::nullopt;
    text.remove_prefix(end + 1);
    return line;
}

}  // namespace

Journal::Journal(const std::string& output, const std::string& input,
                 const std::string& circumstances)
    : name(JournalName(output)), file(host::PathFromUtf8(name)) {
    const std::string merge = MergeOf(input, circumstances);
    const std::string content = file.Read();
    Must(file.Error().empty());
    std::string_view left = content;
    const auto first = TakeLine(left);
    if (!first) {
        Begin(merge);
        return;
    }
    RequireSame(*first, merge);
    while (const auto line = TakeLine(left)) {
        const auto point = nlohmann::json::parse(*line);
        last.input = point.at("input");
        last.output = point.at("output");
        last.rejects = point.at("rejects");
        last.isWhole = point.at("whole");
        last.counts.Add(CountsOf(point.at("counts").dump()));
    }
    Must(file.Cut(content.size() - left.size()));
}

void Journal::Begin(const std::string& merge) {
    Must(file.Cut(0));
    Write(merge);
}

void Journal::RequireSame(const std::string& was, const std::string& is) const {
    if (was == is) return;
    const auto before = nlohmann::json::parse(was);
    const auto now = nlohmann::json::parse(is);
    const bool isInput = before["size"] != now["size"] || before["time"] != now["time"];
    Fail(fmt::format("is of a run with {}; without this file the next run begins anew",
                     isInput ? "an input that was changed since" : "other options"));
}

void Journal::Reach(const MergePoint& point) {
    const nlohmann::ordered_json line{{"input", point.input},
                                      {"output", point.output},
                                      {"rejects", point.rejects},
                                      {"whole", point.isWhole},
                                      {"counts", nlohmann::json::parse(JsonOf(point.counts))}};
    Write(line.dump());
}

void Journal::Remove() {
    Must(file.Remove());
}

void Journal::Write(const std::string& line) {
    Must(file.Write(fmt::format("{} {}\n", SumOf(line), line)) && file.Sync());
}

void Journal::Must(bool isDone) const {
    if (!isDone) Fail(file.Error());
}

void Journal::Fail(const std::string& sentence) const {
    throw Failure(fmt::format("{}: {}", Readable(name), sentence));
}

}  // namespace linewright
