#include "cli/DialogArguments.h"

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace linewright {

void AddDialog(CLI::App& app, DialogOptions& dialog) {
    CLI::App& command = *app.add_subcommand("dialog", "Use a dialog of the plug-in, step by step");
    command.add_option("ID", dialog.resource, "250, the preferences, or 251, the utility")
        ->required()
        ->check(CLI::IsMember({"250", "251"}).description(""));
    // Steps are taken down as they are read, so that they keep their order.
    const auto addStep = [&](const char* name, const char* type, const char* help, auto parse) {
        return command
            .add_option_function<std::string>(
                name,
                [&dialog, parse](const std::string& text) { dialog.steps.push_back(parse(text)); },
                help)
            ->type_name(type)
            ->trigger_on_parse();
    };
    const auto addPress = [&](const char* name, DialogStep::Kind kind, const char* help) {
        return command
            .add_flag_callback(
                name,
                [&dialog, kind] {
                    dialog.steps.push_back({kind, 0, ""});
                },
                help)
            ->trigger_on_parse();
    };
    const std::vector<CLI::Option*> steps{
        addStep("--set", "ID=VALUE", "Type, choose (text or number) or tick (on, off)",
                ParseSetStep),
        addStep("--press", "ID", "Press a button", ParsePressStep),
        addPress("--ok", DialogStep::Kind::kOK, "Press OK"),
        addPress("--cancel", DialogStep::Kind::kCancel, "Press Cancel"),
    };
    CLI::Option* const json = command.add_flag("--json", dialog.isJson, "Print a JSON object");
    CLI::Option* const script =
        command
            .add_option_function<std::string>(
                "--script", [&dialog](const std::string&) { dialog.isScript = true; },
                "Steps from standard input, a JSON object a line, each answered by one")
            ->type_name("-")
            ->check(CLI::IsMember({"-"}).description(""))
            ->excludes(json);
    for (CLI::Option* const step : steps) script->excludes(step);
    command.footer(
        "Steps are done in their order. In a script: {\"set\":ID,\"value\":VALUE}, "
        "{\"press\":ID},\n"
        "{\"open\":250}, {\"ok\":true}, {\"cancel\":true}, {\"show\":true}\n"
        "Example:  linewright dialog 251 --set 0x12211D=EAN-13 --set 0x122119=400638133393 --ok");
}

}  // namespace linewright
