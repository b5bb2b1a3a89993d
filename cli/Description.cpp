#include "cli/Description.h"

#include <nlohmann/json.hpp>

#include "types/BarcodeTypes.h"

namespace linewright {

namespace {

using Json = nlohmann::ordered_json;

Json OptionOf(const CLI::Option& option) {
    Json names;
    for (const std::string& name : option.get_snames()) names.push_back('-' + name);
    for (const std::string& name : option.get_lnames()) names.push_back("--" + name);
    if (option.get_positional()) names.push_back(option.get_name(true));
    const bool isFlag = option.get_items_expected_max() == 0;
    return {{"names", names},
            {"value", isFlag ? Json() : Json(option.get_type_name())},
            {"description", option.get_description()},
            {"isRequired", option.get_required()}};
}

Json CommandOf(const CLI::App& command) {
    Json json{{"name", command.get_name()},
              {"description", command.get_description()},
              {"options", Json::array()},
              {"commands", Json::array()},
              {"footer", command.get_footer()}};
    for (const CLI::Option* const option : command.get_options())
        if (!option->get_group().empty()) json["options"].push_back(OptionOf(*option));
    for (const CLI::App* const part : command.get_subcommands({}))
        json["commands"].push_back(CommandOf(*part));
    return json;
}

}  // namespace

std::string DescriptionOf(const CLI::App& app, const std::string& version) {
    Json description = CommandOf(app);
    description["version"] = version;
    for (const BarcodeType& type : kBarcodeTypes) description["types"].push_back(type.shortName);
    return description.dump(2);
}

}  // namespace linewright
