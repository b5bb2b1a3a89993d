#include "cli/UserFonts.h"

#include <cstdlib>

#ifdef _WIN32
#include <windows.h>
#endif

namespace linewright {

#ifdef _WIN32

std::filesystem::path UserFontFolder() {
    const wchar_t* const local = _wgetenv(L"LOCALAPPDATA");
    if (local == nullptr || *local == L'\0') return {};
    return std::filesystem::path(local) / "Microsoft" / "Windows" / "Fonts";
}

void AnnounceFont(const std::filesystem::path& file, const std::string& family) {
    const std::wstring name = std::wstring(family.begin(), family.end()) + L" (TrueType)";
    const std::wstring value = file.wstring();
    RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows NT\\CurrentVersion\\Fonts",
                    name.c_str(), REG_SZ, value.c_str(),
                    static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
    AddFontResourceW(value.c_str());
}

#else

std::filesystem::path UserFontFolder() {
    const char* const data = std::getenv("XDG_DATA_HOME");
    if (data != nullptr && *data == '/') return std::filesystem::path(data) / "fonts/linewright";
    const char* const home = std::getenv("HOME");
    if (home == nullptr || *home == '\0') return {};
    return std::filesystem::path(home) / ".local/share/fonts/linewright";
}

void AnnounceFont(const std::filesystem::path&, const std::string&) {}

#endif

}  // namespace linewright
