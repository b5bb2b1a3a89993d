#include "host/runtime/Library.h"

#include <stdexcept>

#include "host/runtime/Paths.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace fs = std::filesystem;

namespace host {

namespace {

std::runtime_error LoadError(const fs::path& path, const std::string& what,
                             const std::string& reason) {
    return std::runtime_error(what + " cannot be loaded: " + Utf8FromPath(path) + ": " + reason);
}

}  // namespace

// A path without a folder would be searched for along the system's own: hence the full one.

#ifdef _WIN32

void Library::Load(const fs::path& path, const std::string& what) {
    fHandle = LoadLibraryExW(fs::absolute(path).make_preferred().c_str(), nullptr,
                             LOAD_WITH_ALTERED_SEARCH_PATH);
    if (!fHandle) throw LoadError(path, what, "Windows error " + std::to_string(GetLastError()));
}

void Library::Unload() {
    if (fHandle) FreeLibrary(static_cast<HMODULE>(fHandle));
    fHandle = nullptr;
}

void (*Library::Find(const char* name) const)() {
    return reinterpret_cast<void (*)()>(GetProcAddress(static_cast<HMODULE>(fHandle), name));
}

#else

void Library::Load(const fs::path& path, const std::string& what) {
    fHandle = dlopen(fs::absolute(path).c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!fHandle) throw LoadError(path, what, dlerror());
}

void Library::Unload() {
    if (fHandle) dlclose(fHandle);
    fHandle = nullptr;
}

void (*Library::Find(const char* name) const)() {
    return reinterpret_cast<void (*)()>(dlsym(fHandle, name));
}

#endif

}  // namespace host
