#pragma once

#include <windows.h>

#include <filesystem>
#include <utility>

namespace files {

/** A handle of the system's, closed with it. */
class Handle {
  public:
    Handle() = default;
    explicit Handle(HANDLE opened) : handle(opened) {}
    Handle(Handle&& other) noexcept : handle(std::exchange(other.handle, INVALID_HANDLE_VALUE)) {}
    Handle& operator=(Handle&& other) noexcept {
        std::swap(handle, other.handle);
        return *this;
    }
    ~Handle() { Close(); }

    explicit operator bool() const { return handle != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return handle; }
    void Close() {
        if (*this) CloseHandle(std::exchange(handle, INVALID_HANDLE_VALUE));
    }

  private:
    HANDLE handle = INVALID_HANDLE_VALUE;
};

/** The full path in the form that has no limit of 260 characters. */
inline std::filesystem::path LongPath(const std::filesystem::path& path) {
    const std::wstring full = std::filesystem::absolute(path).make_preferred().native();
    if (full.starts_with(L"\\\\?\\") || full.starts_with(L"\\\\.\\")) return full;
    if (full.starts_with(L"\\\\")) return L"\\\\?\\UNC" + full.substr(1);
    return L"\\\\?\\" + full;
}

}  // namespace files
