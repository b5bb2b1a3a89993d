#include "cli/Description.h"

#include <nlohmann/json.hpp>

#include "types/BarcodeTypes.h"

namespace linewright {

namespace {

using Json = nlohmann::ordered_json;

Json ArgumentOf(const CLI::Option& argument) {
    return {{"name", argument.get_name(true)},
            {"description", argument.get_description()},
            {"isRequired", argument.get_required()}};
}

Json OptionOf(const CLI::Option& option) {
    Json names = Json::array();
    for (const std::string& name : option.get_snames()) names.push_back('-' + name);
    for (const std::string& name : option.get_lnames()) names.push_back("--" + name);
    const bool isFlag = option.get_items_expected_max() == 0;
    return {{"names", names},
            {"value", isFlag ? Json() : Json(option.get_type_name())},
            {"description", option.get_description()},
            {"isRequired", option.get_required()}};
}

Json CommandOf(const CLI::App& command) {
    Json arguments = Json::array();
    Json options = Json::array();
    for (const CLI::Option* const option : command.get_options()) {
        if (option->get_positional()) {
            arguments.push_back(ArgumentOf(*option));
        } else if (!option->get_group().empty()) {
            options.push_back(OptionOf(*option));
        }
    }
    Json commands = Json::array();
    for (const CLI::App* const part : command.get_subcommands({}))
        commands.push_back(CommandOf(*part));
    return {{"name", command.get_name()},        {"description", command.get_description()},
            {"arguments", std::move(arguments)}, {"options", std::move(options)},
            {"commands", std::move(commands)},   {"footer", command.get_footer()}};
}

}  // namespace

std::string DescriptionOf(const CLI::App& app, const std::string& version) {
    Json description = CommandOf(app);
    description["version"] = version;
    description["types"] = Json::array();
    for (const BarcodeType& type : kBarcodeTypes) description["types"].push_back(type.shortName);
    return description.dump(2);
}

}  // namespace linewright
