#include "cli/Arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <map>

namespace linewright {

namespace {

constexpr int kNameColumn = 26;

void AddHostOptions(CLI::App& app, HostOptions& host) {
    const auto add = [&app](const char* name, std::string& value, const char* kind,
                            const char* help) {
        app.add_option(name, value, help)->type_name(kind)->take_last();
    };
    add("--locale", host.locale, "NAME", "enUS, deDE, frFR or jaJP; qps shows keys");
    add("--config-dir", host.roamingFolder, "DIR", "Folder that holds the preferences");
    add("--app-dir", host.appFolder, "DIR", "Folder of the application");
    add("--plugin", host.plugin, "FILE", "The plug-in's library");
}

void AddRatio(CLI::App& command, const CLI::callback_t& store) {
    command.add_option("--ratio", store, "Wide bars to narrow ones: 2 (unless stated), 2.5 or 3")
        ->type_name("N")
        ->check(CLI::IsMember({"2", "2.0", "2.5", "3", "3.0"}).description(""));
}

void AddTypes(CLI::App& app, Arguments& arguments) {
    CLI::App& command = *app.add_subcommand("types", "List the barcode types and their names");
    command.add_flag("--json", arguments.isTypesJson, "Print a JSON array");
    command.footer("Example:  linewright types --json");
}

void AddEncode(CLI::App& app, Arguments& arguments) {
    EncodeOptions& encode = arguments.encode;
    CLI::App& command = *app.add_subcommand("encode", "Turn data into one font string");
    command.add_option("TYPE", encode.type, "Name of the type, see linewright types")->required();
    command
        .add_option("DATA", encode.data,
                    "UTF-8 text; - reads standard input; put -- before data that begins with -")
        ->required();
    command.add_flag("--check", encode.isCheckWanted, "Add the check character a type leaves open");
    AddRatio(command, [&encode](const CLI::results_t& results) {
        encode.ratio = std::stod(results.front());
        return true;
    });
    command.add_flag("--bytes", encode.isBytes, "Send the data as it is, without conversion");
    command.add_flag("--strict", encode.isStrict, "Refuse what there is a warning about");
    const auto addForm = [&](const char* name, EncodeOptions::Form form, const char* help) {
        return command.add_flag_callback(
            name, [&encode, form] { encode.form = form; }, help);
    };
    CLI::Option* const json = addForm("--json", EncodeOptions::Form::kJson, "Print a JSON object");
    CLI::Option* const hex = addForm("--hex", EncodeOptions::Form::kHex, "Print bytes as digits");
    CLI::Option* const raw = addForm("--raw", EncodeOptions::Form::kRaw, "Print the bytes alone");
    json->excludes(hex)->excludes(raw);
    hex->excludes(raw);
    command.footer("Example:  linewright encode code39 FIX-0042 --check --ratio 3");
}

void AddStream(CLI::App& app) {
    CLI::App& command =
        *app.add_subcommand("stream", "Answer requests, a JSON object a line, as they come");
    command.footer(
        "In:   \"type\" or \"typeHex\", \"data\" or \"hex\" (with \"utf8\"), \"check\", \"ratio\"\n"
        "Out:  \"status\", \"recognised\", \"hex\", \"text\", \"hint\"\n\n"
        "Example:  echo '{\"type\":\"_QVT_BARCODE_EAN13_\",\"data\":\"4006381333931\"}' "
        "| linewright stream");
}

char DelimiterOf(const std::string& text) {
    const std::map<std::string, char> names{
        {"comma", ','}, {"semicolon", ';'}, {"tab", '\t'}, {"\\t", '\t'}};
    if (const auto named = names.find(text); named != names.end()) return named->second;
    const bool isUsable =
        text.size() == 1 && text.find_first_of("\"\r\n") == std::string::npos && text[0] > 0;
    if (isUsable) return text[0];
    throw CLI::ValidationError("--delimiter", "is one character, comma, semicolon or tab");
}

void AddBatch(CLI::App& app, Arguments& arguments) {
    BatchOptions& batch = arguments.batch;
    CLI::App& command = *app.add_subcommand("batch", "Turn the rows of a CSV file into barcodes");
    command.add_option("IN", arguments.batchFiles.input, "CSV file, - for standard input")
        ->required();
    command
        .add_option("-o,--output", arguments.batchFiles.output,
                    "CSV file to write; standard output unless stated")
        ->type_name("OUT");
    command.add_option("--type", batch.type, "One type for all rows")->type_name("TYPE");
    command.add_option("--column", batch.dataColumn, "Column of the data; data unless stated")
        ->type_name("NAME");
    command.add_flag("--check", batch.isCheckWanted, "Add the check character in all rows");
    AddRatio(command, [&batch](const CLI::results_t& results) {
        batch.ratio = std::stod(results.front());
        return true;
    });
    command
        .add_option(
            "--delimiter",
            [&batch](const CLI::results_t& results) {
                batch.delimiter = DelimiterOf(results.front());
                return true;
            },
            "Between fields; found from the header unless stated")
        ->type_name("C");
    command.add_flag("--strict", batch.isStrict, "Refuse rows that there is a warning about");
    command.footer(
        "Columns read: type, data, check, ratio. Written: barcode, status, message, warning.\n"
        "Example:  linewright batch labels.csv -o barcodes.csv");
}

void AddPrefs(CLI::App& app, Arguments& arguments) {
    CLI::App& command = *app.add_subcommand("prefs", "Show or set the plug-in's preferences");
    CLI::App& set = *command.add_subcommand("set", "Set preferences, all of them or none");
    set.fallthrough();
    set.add_option("NAME=VALUE", arguments.assignments, "A preference and its new value")
        ->required();
    set.footer("Example:  linewright prefs set code39CheckMode=mod43 codabarStop=B");
    command.footer("Example:  linewright prefs set msiFirstCheck=mod10");
}

Arguments::Command CommandOf(const CLI::App& app) {
    using Command = Arguments::Command;
    const std::map<std::string, Command> commands{
        {"types", Command::kTypes}, {"encode", Command::kEncode}, {"stream", Command::kStream},
        {"batch", Command::kBatch}, {"prefs", Command::kPrefs},
    };
    const CLI::App& chosen = *app.get_subcommands().front();
    if (!chosen.get_subcommands().empty()) return Command::kPrefsSet;
    return commands.at(chosen.get_name());
}

}  // namespace

std::optional<Arguments> ParseArguments(std::vector<std::string> arguments, Console& console,
                                        ExitStatus& exitStatus) {
    std::optional<Arguments> result(std::in_place);
    CLI::App app("Turns data into the font strings of barcode fonts, by the plug-in in its host.",
                 "linewright");
    app.get_formatter()->column_width(kNameColumn);
    app.set_version_flag("--version", "linewright " LINEWRIGHT_VERSION, "Print the version");
    app.require_subcommand(1);
    AddHostOptions(app, result->host);
    AddTypes(app, *result);
    AddEncode(app, *result);
    AddStream(app);
    AddBatch(app, *result);
    AddPrefs(app, *result);
    for (CLI::App* command : app.get_subcommands({})) command->fallthrough();
    app.footer(
        "Each command has its own --help. Options for the host may stand anywhere.\n"
        "Example:  linewright encode ean13 4006381333931");

    try {
        std::reverse(arguments.begin(), arguments.end());
        app.parse(arguments);
    } catch (const CLI::ParseError& error) {
        exitStatus = app.exit(error, console.out, console.err) == 0 ? kDone : kTrouble;
        return std::nullopt;
    }
    result->command = CommandOf(app);
    return result;
}

}  // namespace linewright
