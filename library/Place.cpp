#include "library/Place.h"

#include <filesystem>

#ifdef _WIN32
#include <windows.h>

#include <array>
#else
#include <dlfcn.h>
#endif

#include "host/runtime/Paths.h"

namespace linewright {

namespace {

namespace fs = std::filesystem;

#ifdef _WIN32

fs::path LibraryFolder() {
    HMODULE library = nullptr;
    GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<const wchar_t*>(&LibraryFolder), &library);
    std::array<wchar_t, 32768> name{};
    const DWORD length =
        GetModuleFileNameW(library, name.data(), static_cast<DWORD>(name.size() - 1));
    return fs::path(std::wstring(name.data(), length)).parent_path();
}

#else

fs::path LibraryFolder() {
    Dl_info info{};
    if (dladdr(reinterpret_cast<const void*>(&LibraryFolder), &info) == 0) return {};
    std::error_code error;
    const fs::path file = fs::canonical(info.dli_fname, error);
    return error ? fs::path() : file.parent_path();
}

#endif

std::string Beside(const char* name) {
    return host::Utf8FromPath((LibraryFolder() / name).lexically_normal());
}

}  // namespace

std::string UsualPlugIn() {
    return Beside(LINEWRIGHT_PLUGIN_FILE);
}

std::string UsualFonts() {
    return Beside(LINEWRIGHT_FONT_FOLDER);
}

}  // namespace linewright
