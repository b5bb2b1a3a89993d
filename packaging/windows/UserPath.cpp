#include <windows.h>
// after windows.h, which it needs
#include <shellapi.h>

#include <optional>
#include <string>
#include <string_view>

#include "packaging/windows/PathList.h"

// user-path add FOLDER, user-path remove FOLDER: puts a folder into the user's own PATH or takes it
// out, for the installer, whose script cuts texts that are longer than 1,024 characters.

namespace {

constexpr const wchar_t* kKey = L"Environment";
constexpr const wchar_t* kName = L"Path";

struct Value {
    DWORD type = REG_EXPAND_SZ;
    std::wstring text;
};

/** The user's PATH, empty when there is none; nothing when it cannot be read as text. */
std::optional<Value> ReadPath() {
    constexpr DWORD kAnyText = RRF_RT_REG_SZ | RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND;
    Value value;
    DWORD size = 0;
    const LSTATUS status =
        RegGetValueW(HKEY_CURRENT_USER, kKey, kName, kAnyText, &value.type, nullptr, &size);
    if (status == ERROR_FILE_NOT_FOUND) return Value{};
    value.text.resize(size / sizeof(wchar_t));
    if (status != ERROR_SUCCESS ||
        RegGetValueW(HKEY_CURRENT_USER, kKey, kName, kAnyText, &value.type, value.text.data(),
                     &size) != ERROR_SUCCESS)
        return std::nullopt;
    value.text.resize(value.text.find(L'\0'));
    return value;
}

bool WritePath(const Value& value) {
    if (value.text.empty()) {
        const LSTATUS status = RegDeleteKeyValueW(HKEY_CURRENT_USER, kKey, kName);
        return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND;
    }
    const auto size = static_cast<DWORD>((value.text.size() + 1) * sizeof(wchar_t));
    return RegSetKeyValueW(HKEY_CURRENT_USER, kKey, kName, value.type, value.text.c_str(), size) ==
           ERROR_SUCCESS;
}

/** Programs that are started from now on have the PATH that is written. */
void Announce() {
    constexpr UINT kMilliseconds = 1000;
    SendMessageTimeoutW(HWND_BROADCAST, WM_SETTINGCHANGE, 0, reinterpret_cast<LPARAM>(kKey),
                        SMTO_ABORTIFHUNG, kMilliseconds, nullptr);
}

int Run(std::wstring_view what, std::wstring_view folder) {
    std::optional<Value> value = ReadPath();
    if (!value) return 1;
    const std::wstring changed = what == L"add" ? linewright::WithFolder(value->text, folder)
                                                : linewright::WithoutFolder(value->text, folder);
    if (changed == value->text) return 0;
    value->text = changed;
    if (!WritePath(*value)) return 1;
    Announce();
    return 0;
}

}  // namespace

int main() {
    int count = 0;
    wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
    if (count != 3) return 2;
    const std::wstring_view what = words[1];
    if (what != L"add" && what != L"remove") return 2;
    return Run(what, words[2]);
}
