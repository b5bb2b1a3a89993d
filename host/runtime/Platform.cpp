#include "host/runtime/Platform.h"

#include <cstdlib>

#ifdef _WIN32
#include <io.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

#if __has_include(<sanitizer/asan_interface.h>)
#include <sanitizer/asan_interface.h>
#else
#define ASAN_POISON_MEMORY_REGION(start, size) (static_cast<void>(start), static_cast<void>(size))
#define ASAN_UNPOISON_MEMORY_REGION(start, size) (static_cast<void>(start), static_cast<void>(size))
#endif

namespace fs = std::filesystem;

namespace host {

#ifdef _WIN32

std::optional<fs::path> ProgramFolder() {
    std::wstring name(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
        if (length == 0) return std::nullopt;
        if (length < name.size()) return fs::path(name.substr(0, length)).parent_path();
        name.resize(2 * name.size());
    }
}

std::optional<fs::path> UserSettingsFolder() {
    const wchar_t* const folder = _wgetenv(L"APPDATA");
    if (!folder || !*folder) return std::nullopt;
    return fs::path(folder);
}

unsigned long ProcessNumber() {
    return GetCurrentProcessId();
}

std::FILE* OpenFile(const fs::path& path, OpenMode mode) {
    static constexpr const wchar_t* kModes[] = {L"rb", L"r+b", L"wb"};
    return _wfopen(path.c_str(), kModes[static_cast<int>(mode)]);
}

bool FlushToDisk(std::FILE* file) {
    return std::fflush(file) == 0 && _commit(_fileno(file)) == 0;
}

void FlushFolder(const fs::path&) {}

bool StandardErrorIsTerminal() {
    return _isatty(_fileno(stderr)) != 0;
}

#else

namespace {

/** An absolute folder from an environment variable; others do not count. */
std::optional<fs::path> FolderFromEnvironment(const char* variable) {
    const char* const value = std::getenv(variable);
    if (!value || !fs::path(value).is_absolute()) return std::nullopt;
    return fs::path(value);
}

}  // namespace

std::optional<fs::path> ProgramFolder() {
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    if (error) return std::nullopt;
    return program.parent_path();
}

// XDG Base Directory Specification 0.8: a relative $XDG_CONFIG_HOME is ignored.
std::optional<fs::path> UserSettingsFolder() {
    if (auto folder = FolderFromEnvironment("XDG_CONFIG_HOME")) return folder;
    if (auto home = FolderFromEnvironment("HOME")) return *home / ".config";
    return std::nullopt;
}

unsigned long ProcessNumber() {
    return static_cast<unsigned long>(getpid());
}

std::FILE* OpenFile(const fs::path& path, OpenMode mode) {
    static constexpr const char* kModes[] = {"rbe", "r+be", "wbe"};
    return std::fopen(path.c_str(), kModes[static_cast<int>(mode)]);
}

bool FlushToDisk(std::FILE* file) {
    return std::fflush(file) == 0 && fsync(fileno(file)) == 0;
}

void FlushFolder(const fs::path& folder) {
    const int handle = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) return;
    fsync(handle);
    close(handle);
}

bool StandardErrorIsTerminal() {
    return isatty(fileno(stderr)) != 0;
}

#endif

void ForbidUse(const void* start, std::size_t size) {
    ASAN_POISON_MEMORY_REGION(start, size);
}
void AllowUse(const void* start, std::size_t size) {
    ASAN_UNPOISON_MEMORY_REGION(start, size);
}

}  // namespace host
