#include <algorithm>
#include <system_error>

#include "files/OpenOwnWindows.h"
#include "files/OwnFile.h"

namespace fs = std::filesystem;

namespace files {

namespace {

constexpr DWORD kMostAtOnce = 1 << 30;
constexpr DWORD kNoSharing = 0;

std::string Reason(std::string_view what, DWORD number) {
    return std::string(what) + ": " + std::system_category().message(static_cast<int>(number));
}

}  // namespace

Handle OpenOwn(const fs::path& path, std::string& error) {
    Handle file(CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, kNoSharing,
                            nullptr, OPEN_ALWAYS,
                            FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    BY_HANDLE_FILE_INFORMATION info{};
    if (!file) {
        const DWORD number = GetLastError();
        error = number == ERROR_SHARING_VIOLATION ? "is being written by another process"
                                                  : Reason("cannot be written", number);
    } else if (GetFileType(file.Get()) != FILE_TYPE_DISK ||
               !GetFileInformationByHandle(file.Get(), &info) || info.nNumberOfLinks != 1 ||
               (info.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
        error = "is not a file of this user's own";
    }
    return error.empty() ? std::move(file) : Handle();
}

bool CutAt(HANDLE file, std::uint64_t size) {
    LARGE_INTEGER end{};
    end.QuadPart = static_cast<LONGLONG>(size);
    return SetFilePointerEx(file, end, nullptr, FILE_BEGIN) && SetEndOfFile(file);
}

bool WriteAll(HANDLE file, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto wanted = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), kMostAtOnce));
        DWORD count = 0;
        if (!WriteFile(file, bytes.data(), wanted, &count, nullptr)) return false;
        bytes.remove_prefix(count);
    }
    return true;
}

struct OwnFile::State {
    std::string error;
    Handle file;

    bool Must(bool isDone) {
        if (!isDone && error.empty()) {
            error = Reason("could not be written to its end", GetLastError());
        }
        return error.empty();
    }
};

OwnFile::OwnFile(const fs::path& path) : state(std::make_unique<State>()) {
    state->file = OpenOwn(LongPath(path), state->error);
}

OwnFile::~OwnFile() = default;

std::string OwnFile::Read() {
    std::string content;
    std::string piece(16384, '\0');
    DWORD count = 1;
    if (state->error.empty()) SetFilePointer(state->file.Get(), 0, nullptr, FILE_BEGIN);
    while (state->error.empty() && count > 0) {
        const bool isRead = ReadFile(state->file.Get(), piece.data(),
                                     static_cast<DWORD>(piece.size()), &count, nullptr);
        if (!isRead) state->error = Reason("cannot be read", GetLastError());
        content.append(piece, 0, count);
    }
    return content;
}

bool OwnFile::Cut(std::uint64_t size) {
    return state->Must(state->error.empty() && CutAt(state->file.Get(), size));
}

bool OwnFile::Write(std::string_view bytes) {
    return state->Must(state->error.empty() && WriteAll(state->file.Get(), bytes));
}

bool OwnFile::Sync() {
    return state->Must(state->error.empty() && FlushFileBuffers(state->file.Get()));
}

bool OwnFile::Remove() {
    FILE_DISPOSITION_INFO info{};
    info.DeleteFile = TRUE;
    return state->Must(
        state->error.empty() &&
        SetFileInformationByHandle(state->file.Get(), FileDispositionInfo, &info, sizeof info));
}

const std::string& OwnFile::Error() const {
    return state->error;
}

}  // namespace files
