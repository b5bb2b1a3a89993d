#include <windows.h>

#include <array>

#include "render/TextFace.h"

namespace linewright {

namespace fs = std::filesystem;

namespace {

/** The folder of the program or library that this is part of. */
fs::path OwnFolder() {
    HMODULE self = nullptr;
    GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<const wchar_t*>(&OwnFolder), &self);
    std::array<wchar_t, 32768> name{};
    const DWORD length = GetModuleFileNameW(self, name.data(), static_cast<DWORD>(name.size() - 1));
    return fs::path(std::wstring(name.data(), length)).parent_path();
}

fs::path SystemFonts() {
    const wchar_t* const windows = _wgetenv(L"WINDIR");
    return fs::path(windows == nullptr ? L"" : windows) / "Fonts";
}

}  // namespace

DrawingProblem MissingTextFace() {
    return {DrawingProblem::Reason::kNoTextFace, {"DejaVu Sans Mono"}};
}

fs::path TextFaceFile(bool isBold) {
    const fs::path place = fs::path("share/linewright/text") /
                           (isBold ? "DejaVuSansMono-Bold.ttf" : "DejaVuSansMono.ttf");
    for (fs::path folder = OwnFolder();; folder = folder.parent_path()) {
        if (exists(folder / place)) return folder / place;
        if (!folder.has_relative_path()) throw DrawingFailure(MissingTextFace());
    }
}

std::optional<fs::path> OtherTextFaceFile(bool /*isBold*/, char32_t character) {
    // TrueType faces that Windows has for many scripts, in the order of their likeness.
    for (const char* const name : {"consola.ttf", "segoeui.ttf", "msgothic.ttc", "YuGothM.ttc",
                                   "meiryo.ttc", "malgun.ttf", "msyh.ttc", "seguisym.ttf"}) {
        const fs::path file = SystemFonts() / name;
        if (!exists(file)) continue;
        if (FontFile(file, MissingTextFace()).GlyphOf(character) != 0) return file;
    }
    return std::nullopt;
}

}  // namespace linewright
