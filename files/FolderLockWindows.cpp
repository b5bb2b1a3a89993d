#include "files/FolderLock.h"
#include "files/WindowsHandle.h"

namespace files {

namespace {

// A folder itself cannot be locked; the file stays, as a lock is lost where it is deleted.
constexpr const wchar_t* kLockName = L".linewright-lock";
constexpr DWORD kPause = 2;

}  // namespace

struct FolderLock::State {
    Handle file;
};

FolderLock::FolderLock(const std::filesystem::path& folder, std::chrono::milliseconds patience) {
    Handle opened(CreateFileW(LongPath(folder / kLockName).c_str(), GENERIC_READ | GENERIC_WRITE,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                              OPEN_ALWAYS, FILE_ATTRIBUTE_HIDDEN, nullptr));
    if (!opened) return;
    const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(patience.count());
    OVERLAPPED fromStart{};
    while (!LockFileEx(opened.Get(), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0,
                       &fromStart)) {
        if (GetLastError() != ERROR_LOCK_VIOLATION || GetTickCount64() >= end) return;
        Sleep(kPause);
    }
    state = std::make_unique<State>(State{std::move(opened)});
}

FolderLock::~FolderLock() = default;

}  // namespace files
