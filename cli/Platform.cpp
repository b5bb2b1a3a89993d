#include "cli/Platform.h"

#include <iostream>
#include <system_error>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
// after windows.h, which it needs
#include <shellapi.h>

#include <array>
#else
#include <unistd.h>
#endif

#include "text/Utf16.h"

namespace linewright {

#ifdef _WIN32

std::vector<std::string> CommandLineArguments(int, char**) {
    int count = 0;
    wchar_t** const values = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i) {
        const std::wstring_view value = values[i];
        arguments.push_back(Utf8FromUtf16(std::u16string(value.begin(), value.end())));
    }
    LocalFree(values);
    return arguments;
}

std::filesystem::path ProgramFolder() {
    std::array<wchar_t, 32768> name{};
    const DWORD length =
        GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size() - 1));
    return std::filesystem::path(std::wstring(name.data(), length)).parent_path();
}

void PrepareStandardStreams() {
    for (FILE* const stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
    SetConsoleOutputCP(CP_UTF8);
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr);
}

bool IsStandardErrorTerminal() {
    return _isatty(_fileno(stderr)) != 0;
}

#else

std::vector<std::string> CommandLineArguments(int count, char** values) {
    if (count < 1) return {};
    return {values + 1, values + count};
}

std::filesystem::path ProgramFolder() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
}

void PrepareStandardStreams() {
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr);
}

bool IsStandardErrorTerminal() {
    return isatty(STDERR_FILENO) != 0;
}

#endif

}  // namespace linewright
