#include "cli/FontsCommand.h"

#include <fmt/format.h>

#include <cmath>
#include <nlohmann/json.hpp>

#include "host/runtime/Paths.h"
#include "merge/Failure.h"
#include "types/BarcodeTypes.h"
#include "userfonts/UserFonts.h"

namespace linewright {

namespace {

/** The types of a font by their short names, and the size that they are drawn at. */
std::pair<std::string, double> TypesOf(const BarcodeFace* face) {
    std::string names;
    double size = 0;
    for (const BarcodeType& type : kBarcodeTypes) {
        if (type.face != face) continue;
        names += (names.empty() ? "" : ", ") + std::string(type.shortName);
        if (face != nullptr) size = type.Module() * face->modulesPerEm;
    }
    return {names, size};
}

double Rounded(double number) {
    return std::round(number * 10000) / 10000;
}

nlohmann::ordered_json JsonOf(const BarcodeType& type, std::optional<double> xDimension) {
    const double x = xDimension.value_or(type.dimensions.xDimension);
    const double size = x / type.dimensions.modulesPerX * type.face->modulesPerEm;
    return {{"type", type.shortName},
            {"font", type.face->family},
            {"style", "Regular"},
            {"size", Rounded(size)},
            {"xDimension", Rounded(x / kMillimetre)}};
}

}  // namespace

ExitStatus RunFontsListJson(std::optional<double> xDimension, Console& console) {
    auto list = nlohmann::ordered_json::array();
    for (const BarcodeType& type : kBarcodeTypes) {
        if (type.face != nullptr) list.push_back(JsonOf(type, xDimension));
    }
    console.out << list.dump(2) << '\n';
    return kDone;
}

ExitStatus RunFontsList(const std::string& fonts, Console& console) {
    console.out << fmt::format("{:28}{:>9}  {}\n", "font", "size", "types");
    for (const BarcodeFace* const face : kBarcodeFaces) {
        const auto [names, size] = TypesOf(face);
        console.out << fmt::format("{:28}{:>6.2f} pt  {}\n", face->family, size, names);
    }
    console.out << fmt::format("{:28}{:>9}  {}\n", "(any text face)", "", TypesOf(nullptr).first);
    console.out << "\nThe files lie in " << fonts << '\n';
    return kDone;
}

ExitStatus RunFontsInstall(const std::string& fonts, Console& console) {
    const InstalledFonts installed = InstallUserFonts(host::PathFromUtf8(fonts));
    if (!installed.error.empty()) throw Failure(installed.error);
    console.out << fmt::format("{} fonts in {}\n", installed.count,
                               host::Utf8FromPath(installed.folder));
    return kDone;
}

}  // namespace linewright
