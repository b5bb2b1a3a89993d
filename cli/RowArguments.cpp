#include "cli/RowArguments.h"

#include <fmt/format.h>

#include <charconv>
#include <map>

#include "cli/DrawingArguments.h"
#include "cli/Length.h"

namespace linewright {

namespace {

/** Adds an option whose text `parse` turns into a value. */
template <class Value, class Parse>
CLI::Option* AddParsed(CLI::App& command, const char* name, const char* kind, Value& value,
                       Parse parse, const std::string& help) {
    return command
        .add_option(
            name,
            [&value, name, parse](const CLI::results_t& results) {
                value = parse(results.front(), name);
                return true;
            },
            help)
        ->type_name(kind);
}

char DelimiterOf(const std::string& text, const char* option) {
    const std::map<std::string, char> names{
        {"comma", ','}, {"semicolon", ';'}, {"tab", '\t'}, {"\\t", '\t'}};
    if (const auto named = names.find(text); named != names.end()) return named->second;
    const bool isUsable =
        text.size() == 1 && text.find_first_of("\"\r\n") == std::string::npos && text[0] > 0;
    if (isUsable) return text[0];
    throw CLI::ValidationError(option, "is one character, comma, semicolon or tab");
}

Encoding StatedEncoding(const std::string& text, const char* option) {
    if (const auto encoding = EncodingOf(text)) return *encoding;
    throw CLI::ValidationError(option, fmt::format("is {}", kEncodingNames));
}

/** A number of bytes, with k, M or G behind it for thousands, millions and thousands of millions by
 *  twos. */
std::size_t SizeOf(const std::string& text, const char* option) {
    std::size_t number = 0;
    const char* const last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, number);
    const std::string_view unit(end, static_cast<std::size_t>(last - end));
    const std::map<std::string_view, unsigned> shifts{{"", 0}, {"k", 10}, {"M", 20}, {"G", 30}};
    const auto shift = shifts.find(unit);
    constexpr std::size_t kLargest = std::size_t{1} << 40;
    if (error != std::errc() || number == 0 || shift == shifts.end() ||
        number > kLargest >> shift->second) {
        throw CLI::ValidationError(option, "is a number of bytes such as 65536, 64M or 1G");
    }
    return number << shift->second;
}

/** "barcode=NAME,status=NAME". */
std::map<Result, std::string> NamesOf(const std::string& text, const char* option) {
    std::map<Result, std::string> names;
    for (const std::string& pair : CLI::detail::split(text, ',')) {
        const std::size_t equals = pair.find('=');
        const auto result = ResultOf(pair.substr(0, equals));
        if (!result || equals == std::string::npos || equals + 1 == pair.size() ||
            !names.emplace(*result, pair.substr(equals + 1)).second) {
            throw CLI::ValidationError(
                option, "is a list such as barcode=NAME,status=NAME, each result once");
        }
    }
    return names;
}

std::vector<Result> AddedOf(const std::string& text, const char* option) {
    std::vector<Result> added;
    for (const std::string& name : CLI::detail::split(text, ',')) {
        const auto result = ResultOf(name);
        const bool isOne =
            result == Result::kFont || result == Result::kSize || result == Result::kText;
        if (!isOne || std::find(added.begin(), added.end(), *result) != added.end()) {
            throw CLI::ValidationError(option, "is a list of font, size and text, each once");
        }
        added.push_back(*result);
    }
    return added;
}

/** "2/8". */
Shard ShardOf(const std::string& text, const char* option) {
    Shard shard{0, 0};
    const char* const last = text.data() + text.size();
    const auto [slash, error] = std::from_chars(text.data(), last, shard.part);
    const bool isPart = error == std::errc() && slash != last && *slash == '/';
    const auto end = isPart ? std::from_chars(slash + 1, last, shard.of).ptr : slash;
    if (!isPart || end != last || shard.part < 1 || shard.part > shard.of ||
        shard.of > kMostShards) {
        throw CLI::ValidationError(
            option,
            fmt::format("is a part such as 2/8: of at most {}, from the first on", kMostShards));
    }
    return shard;
}

}  // namespace

void AddColumns(CLI::App& command, RowOptions& rows) {
    command.add_option("--type", rows.type, "One type for all rows")->type_name("TYPE");
    command.add_option("--type-column", rows.typeColumn, "Column of the type; type unless stated")
        ->type_name("NAME");
    command.add_option("--column", rows.dataColumn, "Column of the data; data unless stated")
        ->type_name("NAME");
    AddParsed(command, "--delimiter", "C", rows.delimiter, DelimiterOf,
              "Between fields; found from the first row unless stated");
    command.add_flag("--no-header{false}", rows.hasHeader,
                     "The first row is data; columns are named 1, 2, 3, …");
    AddParsed(command, "--encoding", "NAME", rows.encoding, StatedEncoding,
              "Of the file: windows-1252 or mac-roman; UTF-8 and UTF-16 are found");
    AddParsed(command, "--max-record", "SIZE", rows.maxRecord, SizeOf,
              "Longest row in bytes; 64M unless stated");
}

void AddResults(CLI::App& command, MergeOptions& merge) {
    AddParsed(command, "--to", "NAME", merge.to, StatedEncoding,
              "Encoding of the output; the input's unless stated");
    command.add_option("--prefix", merge.names.prefix, "In front of the names of results")
        ->type_name("P");
    AddParsed(command, "--columns", "LIST", merge.names.chosen, NamesOf,
              "Other names for results: barcode=NAME,status=NAME");
    command.add_flag("--replace", merge.names.isReplacing,
                     "Write over columns that have the names of results");
    AddParsed(command, "--add", "LIST", merge.added, AddedOf,
              "More results: font, size (points), text (below the bars)");
    AddParsed(command, "--x-dimension", "LENGTH", merge.xDimension, XDimensionOf,
              "Narrowest bar, for the size: 0.33mm, 10mil, 0.7pt");
    command.add_flag("--drop-input{false}", merge.keepsInput, "Write the results alone");
    command
        .add_option("--rejects", merge.rejects, "CSV file for refused rows, with line and reason")
        ->check(NamesAFile())
        ->type_name("FILE");
    command.add_option("--summary", merge.summary, "JSON file for what was refused how often")
        ->check(NamesAFile())
        ->type_name("FILE");
    command.add_flag("--refused-ok", merge.areRefusalsFine, "Exit status 0 with refused rows too");
    command.add_option("--stop-at", merge.stopAt, "End the run at the N-th refused row")
        ->type_name("N")
        ->check(CLI::PositiveNumber.description(""));
}

void AddScale(CLI::App& command, MergeOptions& merge) {
    constexpr unsigned kMostJobs = 256;
    // Not among the circumstances of a run: they change nothing of its result.
    command.add_option("--jobs", merge.jobs, "Processes that make barcodes; 1 unless stated")
        ->type_name("N")
        ->check(CLI::Range(1U, kMostJobs).description(""))
        ->configurable(false);
    CLI::Option* const shard = AddParsed(command, "--shard", "I/N", merge.shard, ShardOf,
                                         "Rows of the I-th of N parts alone; the header in part 1");
    AddParsed(
        command, "--header", "all", merge.haveAllShardsHeader,
        [](const std::string& text, const char* option) {
            if (text == "all") return true;
            throw CLI::ValidationError(option, "is all");
        },
        "The header in each part")
        ->needs(shard);
    command
        .add_flag("--resume", merge.isResumed,
                  "Go on with a run that was ended, or leave what it needs to")
        ->configurable(false);
}

}  // namespace linewright
