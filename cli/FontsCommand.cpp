#include "cli/FontsCommand.h"

#include <fmt/format.h>

#include <cmath>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <system_error>

#include "cli/UserFonts.h"
#include "files/NewFile.h"
#include "host/runtime/Paths.h"
#include "merge/ByteSource.h"
#include "merge/Failure.h"
#include "merge/ReadAll.h"
#include "types/BarcodeTypes.h"

namespace linewright {

namespace fs = std::filesystem;

namespace {

fs::path FileOf(const std::string& fonts, const BarcodeFace& face) {
    return host::PathFromUtf8(fonts) / (std::string(face.fileStem) + ".ttf");
}

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
    const fs::path folder = UserFontFolder();
    if (folder.empty()) throw Failure("the system names no folder for a user's fonts");
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) throw Failure(fmt::format("{}: {}", host::Utf8FromPath(folder), error.message()));
    for (const BarcodeFace* const face : kBarcodeFaces) {
        const fs::path file = FileOf(fonts, *face);
        const fs::path installed = folder / file.filename();
        files::NewFile copy(installed, {.startsAfresh = true});
        copy.Write(ReadAll(*OpenInput(host::Utf8FromPath(file))));
        if (!copy.Keep())
            throw Failure(fmt::format("{}: {}", host::Utf8FromPath(installed), copy.Error()));
        AnnounceFont(installed, std::string(face->family));
    }
    console.out << fmt::format("{} fonts in {}\n", kBarcodeFaces.size(),
                               host::Utf8FromPath(folder));
    return kDone;
}

}  // namespace linewright
