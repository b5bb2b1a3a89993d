#include "userfonts/UserFonts.h"

#include <cerrno>
#include <fstream>
#include <iterator>
#include <optional>
#include <system_error>

#include "files/NewFile.h"
#include "host/runtime/Paths.h"
#include "types/BarcodeFace.h"
#include "userfonts/UserFontFolder.h"

namespace linewright {

namespace fs = std::filesystem;

namespace {

/** All bytes of a file; none where it cannot be read. */
std::optional<std::string> ContentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::string content{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (!stream.is_open() || stream.bad()) return std::nullopt;
    return content;
}

std::string About(const fs::path& file, const std::string& reason) {
    return host::Utf8FromPath(file) + ": " + reason;
}

/** Why a font was not installed; "" where it was. */
std::string Install(const fs::path& file, const fs::path& installed, const BarcodeFace& face) {
    const auto content = ContentOf(file);
    if (!content) return About(file, std::generic_category().message(errno));
    files::NewFile copy(installed, {.startsAfresh = true});
    copy.Write(*content);
    if (!copy.Keep()) return About(installed, copy.Error());
    AnnounceFont(installed, std::string(face.family));
    return "";
}

}  // namespace

InstalledFonts InstallUserFonts(const fs::path& fonts) {
    InstalledFonts result{.folder = UserFontFolder()};
    if (result.folder.empty()) {
        result.error = "the system names no folder for a user's fonts";
        return result;
    }
    std::error_code error;
    fs::create_directories(result.folder, error);
    if (error) result.error = About(result.folder, error.message());
    for (const BarcodeFace* const face : kBarcodeFaces) {
        if (!result.error.empty()) return result;
        const fs::path file = fonts / (std::string(face->fileStem) + ".ttf");
        result.error = Install(file, result.folder / file.filename(), *face);
        if (result.error.empty()) ++result.count;
    }
    return result;
}

}  // namespace linewright
