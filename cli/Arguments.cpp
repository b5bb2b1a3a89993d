#include "cli/Arguments.h"

#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <map>
#include <memory>

#include "cli/DialogArguments.h"
#include "cli/DrawingArguments.h"
#include "cli/RowArguments.h"
#include "merge/Failure.h"
#include "text/Nearest.h"

namespace linewright {

namespace {

constexpr int kNameColumn = 26;

/** The library's form of a help text without blank lines above lists, which a screen has no room
 *  for, and with --no-text where it has --no-text{false}. */
class HelpFormatter : public CLI::Formatter {
  public:
    std::string make_group(std::string group, bool isPositional,
                           std::vector<const CLI::Option*> options) const override {
        return CLI::Formatter::make_group(group, isPositional, options).substr(1);
    }
    std::string make_option_name(const CLI::Option* option, bool isPositional) const override {
        return CLI::detail::find_and_replace(CLI::Formatter::make_option_name(option, isPositional),
                                             "{false}", "");
    }
};

void AddHostOptions(CLI::App& app, HostOptions& host, std::string& fonts) {
    const auto add = [&app](const char* name, std::string& value, const char* kind,
                            const char* help) {
        app.add_option(name, value, help)->type_name(kind)->take_last();
    };
    add("--locale", host.locale, "NAME", "enUS, deDE, frFR or jaJP; qps shows keys");
    add("--config-dir", host.roamingFolder, "DIR", "Folder that holds the preferences");
    add("--app-dir", host.appFolder, "DIR", "Folder of the application");
    add("--plugin", host.plugin, "FILE", "The plug-in's library");
    add("--fonts", fonts, "DIR", "Folder of the barcode fonts");
}

void AddRatio(CLI::App& command, const CLI::callback_t& store) {
    command.add_option("--ratio", store, "Wide bars to narrow ones: 2 (unless stated), 2.5 or 3")
        ->type_name("N")
        ->check(CLI::IsMember({"2", "2.0", "2.5", "3", "3.0"}).description(""));
}

void AddGtin(CLI::App& command, bool& isArticleNumber) {
    command.add_flag("--gtin", isArticleNumber,
                     "Bring article numbers, ISBN and ISSN to the type's form");
}

void AddTypes(CLI::App& app, Arguments& arguments) {
    CLI::App& command = *app.add_subcommand("types", "List the barcode types and their names");
    command.add_flag("--json", arguments.isTypesJson, "Print a JSON array");
    command.footer("Example:  linewright types --json");
}

/** What all commands have that make one barcode. */
CLI::Option* AddBarcode(CLI::App& command, EncodeOptions& encode) {
    command.add_option("TYPE", encode.type, "Name of the type, see linewright types")->required();
    CLI::Option* const data =
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
    AddGtin(command, encode.isArticleNumber);
    return data;
}

void AddEncode(CLI::App& app, Arguments& arguments) {
    EncodeOptions& encode = arguments.encode;
    CLI::App& command = *app.add_subcommand("encode", "Turn data into one font string");
    AddBarcode(command, encode);
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
        "In:   \"type\" or \"typeHex\", \"data\" or \"hex\" (with \"utf8\"), \"check\", \"ratio\", "
        "\"gtin\", \"warnings\", \"id\"\n"
        "Out:  \"id\", \"status\", \"recognised\", \"hex\", \"text\", \"hint\", \"note\", "
        "\"warnings\"\n\n"
        "Example:  echo '{\"type\":\"_QVT_BARCODE_EAN13_\",\"data\":\"4006381333931\"}' "
        "| linewright stream");
}

/** What all commands have that work on the rows of a file. */
void AddRows(CLI::App& command, Arguments& arguments) {
    RowOptions& rows = arguments.batch.rows;
    command.add_option("IN", arguments.batchFiles.input, "CSV file, - for standard input")
        ->required();
    AddColumns(command, rows);
    command.add_flag("--check", rows.isCheckWanted, "Add the check character in all rows");
    AddRatio(command, [&rows](const CLI::results_t& results) {
        rows.ratio = std::stod(results.front());
        return true;
    });
    command.add_flag("--strict", rows.isStrict, "Refuse rows that there is a warning about");
    AddGtin(command, rows.isArticleNumber);
}

void AddBatch(CLI::App& app, Arguments& arguments) {
    CLI::App& command = *app.add_subcommand("batch", "Turn the rows of a CSV file into barcodes");
    AddRows(command, arguments);
    command
        .add_option("-o,--output", arguments.batchFiles.output,
                    "CSV file to write; standard output unless stated")
        ->check(NamesAFile())
        ->type_name("OUT");
    AddResults(command, arguments.batch);
    AddScale(command, arguments.batch);
    command.add_flag("--verify", arguments.batch.isVerified, "Add what scanners read of each");
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

void AddDraw(CLI::App& app, Arguments& arguments) {
    DrawOptions& draw = arguments.draw;
    CLI::App& command =
        *app.add_subcommand("draw", "Draw barcodes into files (Linux): TYPE DATA, or a CSV file");
    CLI::Option* const data = AddBarcode(command, draw.encode)->required(false);
    command.callback([&draw, data] { draw.hasData = data->count() > 0; });
    AddColumns(command, draw.rows);
    AddFile(command, draw);
    AddDrawing(command, draw.drawing);
    AddSurroundings(command, draw.drawing);
    AddText(command, draw.drawing);
    AddResolution(command, draw);
    command.add_flag("--verify", draw.isVerified, "Say what scanners read of it");
    command.footer(
        "Example:  linewright draw ean13 4006381333931 -o pen.pdf --verify\n"
        "          linewright draw labels.csv -o \"{line}-{data}.pdf\"");
}

void AddVerify(CLI::App& app, Arguments& arguments) {
    DrawOptions& draw = arguments.draw;
    CLI::App& command =
        *app.add_subcommand("verify", "Say what scanners read of a barcode (Linux)");
    AddBarcode(command, draw.encode);
    AddDrawing(command, draw.drawing);
    AddResolution(command, draw);
    command.footer("Example:  linewright verify code128 \"(10)AB-123(21)7\"");
}

void AddProof(CLI::App& app, Arguments& arguments) {
    CLI::App& command =
        *app.add_subcommand("proof", "Draw the rows of a CSV file on a sheet (Linux)");
    AddRows(command, arguments);
    command.add_option("-o,--output", arguments.batchFiles.output, "PDF file to write")
        ->check(NamesAFile())
        ->type_name("F")
        ->required();
    command.add_option("--title", arguments.batch.rows.titleColumn, "Column of titles")
        ->type_name("NAME");
    command.add_flag("--letter", arguments.draw.isLetter, "Letter paper in place of A4");
    AddDrawing(command, arguments.draw.drawing);
    AddText(command, arguments.draw.drawing);
    command.add_flag("--verify", arguments.draw.isVerified,
                     "Exit status 4 when one does not scan as it is meant");
    command.footer("Example:  linewright proof labels.csv -o proof.pdf");
}

void AddFonts(CLI::App& app, Arguments& arguments) {
    CLI::App& command = *app.add_subcommand("fonts", "List or install the barcode fonts");
    command.require_subcommand(1);
    CLI::App& list = *command.add_subcommand("list", "Fonts, their sizes and types")->fallthrough();
    list.add_flag("--json", arguments.isFontsJson, "Print a JSON array of all types with a font");
    AddXDimension(list, arguments.draw.drawing);
    list.footer("Example:  linewright fonts list --json --x-dimension 0.25mm");
    command.add_subcommand("install", "Install them for this user")->fallthrough();
    command.footer("Example:  linewright fonts install");
}

/** The command that the words name, or as much of it as they do. */
const CLI::App& Chosen(const CLI::App& app) {
    const auto parts = app.get_subcommands();
    return parts.empty() ? app : Chosen(*parts.front());
}

std::string NameOf(const CLI::App& command) {
    const CLI::App* const parent = command.get_parent();
    return (parent ? NameOf(*parent) + ' ' : "") + command.get_name();
}

/** What is wrong with a command line: its first word that means nothing, else what the library
 *  says. */
std::string WhatIsWrong(const CLI::App& app, const CLI::ParseError& error) {
    const std::vector<std::string> words = app.remaining(true);
    const auto word =
        std::find_if(words.begin(), words.end(), [](const auto& each) { return each != "--"; });
    if (word == words.end()) return error.what();
    const CLI::App& command = Chosen(app);
    std::vector<std::string_view> parts;
    for (const CLI::App* part : command.get_subcommands({})) parts.push_back(part->get_name());
    if (parts.empty() || word->starts_with('-'))
        return fmt::format("\"{}\" is not expected here", *word);
    return fmt::format("there is no \"{0} {1}\"; nearest: {0} {2}", NameOf(command), *word,
                       Nearest(*word, parts, 1).front());
}

Arguments::Command CommandOf(const CLI::App& app) {
    using Command = Arguments::Command;
    const std::map<std::string, Command> commands{
        {"types", Command::kTypes},          {"encode", Command::kEncode},
        {"stream", Command::kStream},        {"batch", Command::kBatch},
        {"prefs", Command::kPrefs},          {"prefs set", Command::kPrefsSet},
        {"dialog", Command::kDialog},        {"draw", Command::kDraw},
        {"verify", Command::kVerify},        {"proof", Command::kProof},
        {"fonts list", Command::kFontsList}, {"fonts install", Command::kFontsInstall},
    };
    const CLI::App& chosen = *app.get_subcommands().front();
    const auto parts = chosen.get_subcommands();
    const std::string part = parts.empty() ? "" : ' ' + parts.front()->get_name();
    return commands.at(chosen.get_name() + part);
}

}  // namespace

std::optional<Arguments> ParseArguments(std::vector<std::string> arguments, Console& console) {
    std::optional<Arguments> result(std::in_place);
    CLI::App app("Turns data into the font strings of barcode fonts, by the plug-in in its host.",
                 "linewright");
    app.formatter(std::make_shared<HelpFormatter>());
    app.get_formatter()->column_width(kNameColumn);
    app.set_version_flag("--version", "linewright " LINEWRIGHT_VERSION, "Print the version");
    app.require_subcommand(1);
    AddHostOptions(app, result->host, result->fonts);
    AddTypes(app, *result);
    AddEncode(app, *result);
    AddStream(app);
    AddBatch(app, *result);
    AddPrefs(app, *result);
    AddDialog(app, result->dialog);
    AddDraw(app, *result);
    AddVerify(app, *result);
    AddProof(app, *result);
    AddFonts(app, *result);
    for (CLI::App* command : app.get_subcommands({})) command->fallthrough();
    app.footer(
        "Example:  linewright encode ean13 4006381333931    (each command has its own --help)");

    try {
        std::reverse(arguments.begin(), arguments.end());
        app.parse(arguments);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() != 0) {
            throw Failure(
                fmt::format("{}; see {} --help", WhatIsWrong(app, error), NameOf(Chosen(app))));
        }
        app.exit(error, console.out, console.err);
        return std::nullopt;
    }
    result->command = CommandOf(app);
    result->batch.circumstances = "linewright " LINEWRIGHT_VERSION "\n" + app.config_to_str();
    return result;
}

}  // namespace linewright
