#include "cli/TypesCommand.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>

#include "types/BarcodeTypes.h"

namespace linewright {

namespace {

double Millimetres(double points) {
    constexpr double kSteps = 1e4;
    return std::round(points / kMillimetre * kSteps) / kSteps;
}

nlohmann::ordered_json JsonOf(std::size_t index, const TypeDescription& type) {
    const BarcodeType& row = *FindTypeByPrefix(type.typeName);
    nlohmann::ordered_json object{
        {"index", index},
        {"type", type.typeName},
        {"shortName", row.shortName},
        {"displayText", type.displayText},
        {"font", nullptr},
        {"modulesPerEm", nullptr},
        {"xDimension", nullptr},
    };
    if (row.face != nullptr) {
        object["font"] = row.face->family;
        object["modulesPerEm"] = row.face->modulesPerEm;
        object["xDimension"] = Millimetres(row.dimensions.xDimension);
    }
    if (type.optionFlags) {
        object["optionFlag1"] = (*type.optionFlags)[0];
        object["optionFlag2"] = (*type.optionFlags)[1];
        object["optionFlag3"] = (*type.optionFlags)[2];
    }
    return object;
}

std::string FlagsOf(const TypeDescription& type) {
    return type.optionFlags ? fmt::format("{}", fmt::join(*type.optionFlags, " ")) : "";
}

void PrintTable(const std::vector<TypeDescription>& types, std::ostream& out) {
    std::size_t nameWidth = 0;
    std::size_t shortWidth = 0;
    for (const TypeDescription& type : types) {
        nameWidth = std::max(nameWidth, type.typeName.size());
        shortWidth = std::max(shortWidth, FindTypeByPrefix(type.typeName)->shortName.size());
    }
    const auto print = [&](std::string_view index, std::string_view shortName,
                           std::string_view name, std::string_view flags, std::string_view text) {
        out << fmt::format("{:>5}  {:{}}  {:{}}  {:5}  {}\n", index, shortName, shortWidth, name,
                           nameWidth, flags, text);
    };
    print("index", "short name", "type name", "flags", "display text");
    for (std::size_t i = 0; i < types.size(); ++i) {
        print(std::to_string(i), FindTypeByPrefix(types[i].typeName)->shortName, types[i].typeName,
              FlagsOf(types[i]), types[i].displayText);
    }
}

}  // namespace

ExitStatus RunTypes(Service& service, bool isJson, Console& console) {
    const std::vector<TypeDescription> types = service.Types();
    if (!isJson) {
        PrintTable(types, console.out);
        return kDone;
    }
    auto list = nlohmann::ordered_json::array();
    for (std::size_t i = 0; i < types.size(); ++i) list.push_back(JsonOf(i, types[i]));
    console.out << list.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
    return kDone;
}

}  // namespace linewright
