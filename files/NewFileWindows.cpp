#include <algorithm>
#include <array>
#include <chrono>
#include <system_error>

#include "files/DraftName.h"
#include "files/NewFile.h"
#include "files/OpenOwnWindows.h"
#include "files/WindowsHandle.h"

namespace fs = std::filesystem;

namespace files {

namespace {

constexpr std::size_t kPieceSize = 16384;
constexpr DWORD kNoSharing = 0;

/** Others that look at the file at the same time, or replace it, are done within this time. */
constexpr int kTries = 100;
constexpr DWORD kPause = 10;

/** Whether a failure is one that others cause who have the file open. */
bool IsOthersDoing(DWORD number) {
    constexpr std::array kNumbers{ERROR_SHARING_VIOLATION,
                                  ERROR_LOCK_VIOLATION,
                                  ERROR_ACCESS_DENIED,
                                  ERROR_ALREADY_EXISTS,
                                  ERROR_UNABLE_TO_REMOVE_REPLACED,
                                  ERROR_UNABLE_TO_MOVE_REPLACEMENT,
                                  ERROR_USER_MAPPED_FILE};
    return std::find(kNumbers.begin(), kNumbers.end(), static_cast<long>(number)) != kNumbers.end();
}

bool IsLink(const fs::path& path) {
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW(path.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return false;
    FindClose(search);
    return (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
           found.dwReserved0 == IO_REPARSE_TAG_SYMLINK;
}

/** A draft goes with its handle, however that is closed, until it is told to stay. */
bool GoesWhenClosed(HANDLE file, bool goes) {
    FILE_DISPOSITION_INFO info{};
    info.DeleteFile = goes;
    return SetFileInformationByHandle(file, FileDispositionInfo, &info, sizeof info) != 0;
}

DWORD ReadPiece(HANDLE file, std::array<char, kPieceSize>& piece) {
    DWORD count = 0;
    return ReadFile(file, piece.data(), kPieceSize, &count, nullptr) ? count : 0;
}

bool HoldTheSame(HANDLE first, HANDLE second) {
    LARGE_INTEGER size{};
    LARGE_INTEGER otherSize{};
    if (!GetFileSizeEx(first, &size) || !GetFileSizeEx(second, &otherSize) ||
        size.QuadPart != otherSize.QuadPart)
        return false;
    SetFilePointer(first, 0, nullptr, FILE_BEGIN);
    std::array<char, kPieceSize> piece;
    std::array<char, kPieceSize> other;
    while (size.QuadPart > 0) {
        const DWORD count = ReadPiece(first, piece);
        if (count == 0 || ReadPiece(second, other) != count ||
            !std::equal(piece.begin(), piece.begin() + count, other.begin()))
            return false;
        size.QuadPart -= count;
    }
    return true;
}

bool IsStale(const FILETIME& written) {
    using Ticks = std::chrono::duration<ULONGLONG, std::ratio<1, 10'000'000>>;
    const auto ticksOf = [](const FILETIME& time) {
        return Ticks(ULONGLONG{time.dwHighDateTime} << 32 | time.dwLowDateTime);
    };
    FILETIME now{};
    GetSystemTimeAsFileTime(&now);
    return ticksOf(now) > ticksOf(written) + Ticks(kStaleAge);
}

/** Removes drafts that are old, and that nobody has open. */
void RemoveStaleDrafts(const fs::path& folder) {
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW((folder / L".linewright-*.draft").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return;
    do {
        const std::wstring name = found.cFileName;
        const bool isPlain =
            std::all_of(name.begin(), name.end(), [](wchar_t c) { return c < 128; });
        if (!isPlain || !IsDraftName(fs::path(name).string()) || !IsStale(found.ftLastWriteTime))
            continue;
        Handle(CreateFileW((folder / name).c_str(), DELETE, kNoSharing, nullptr, OPEN_EXISTING,
                           FILE_FLAG_DELETE_ON_CLOSE | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    } while (FindNextFileW(search, &found));
    FindClose(search);
}

}  // namespace

struct NewFile::State {
    Manner manner;
    std::string error;
    fs::path target;
    fs::path draft;  // "" for what is written directly
    bool isThere = false;
    Handle file;

    ~State() {
        if (!manner.isLasting) Discard();
    }

    bool Fail(std::string_view what) {
        if (error.empty()) error = what;
        return false;
    }
    bool Fail(std::string_view what, DWORD number) {
        return Fail(std::string(what) + ": " +
                    std::system_category().message(static_cast<int>(number)));
    }

    bool Open(const fs::path& path) {
        if (path.empty()) return Fail("is no name of a file");
        if (!path.has_filename()) return Fail("is a folder");
        target = LongPath(path);
        return Look() && (file || OpenDraft());
    }

    /** Sees to it that what has the name may be replaced; opens it if it is to be written itself.
     */
    bool Look() {
        const DWORD attributes = GetFileAttributesW(target.c_str());
        isThere = attributes != INVALID_FILE_ATTRIBUTES;
        if (isThere && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return Fail("is a folder");
        if (manner.startsAfresh) return true;
        if (IsLink(target)) return Fail("is a link");
        if (isThere && (attributes & FILE_ATTRIBUTE_READONLY) != 0) return Fail("is read-only");
        Handle present(CreateFileW(target.c_str(), GENERIC_WRITE,
                                   FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                   OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
        // Whether a file that another has open can be replaced shows when it is.
        if (!present) {
            const DWORD number = GetLastError();
            const bool isHarmless = number == ERROR_FILE_NOT_FOUND ||
                                    number == ERROR_SHARING_VIOLATION ||
                                    (number == ERROR_ACCESS_DENIED && !isThere);
            return isHarmless ? true : Fail("cannot be written", number);
        }
        if (GetFileType(present.Get()) == FILE_TYPE_DISK) return true;
        if (!manner.writesDevices) return Fail("is no file");
        file = std::move(present);
        return true;
    }

    bool OpenDraft() {
        RemoveStaleDrafts(target.parent_path());
        if (manner.isLasting) return OpenLastingDraft();
        draft = target.parent_path() / NewDraftName();
        file = Handle(CreateFileW(draft.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, kNoSharing,
                                  nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
        if (!file) return Fail("cannot be written", GetLastError());
        GoesWhenClosed(file.Get(), true);
        return true;
    }

    bool OpenLastingDraft() {
        std::string reason;
        const fs::path lasting = target.parent_path() / LastingDraftName(target.filename());
        file = OpenOwn(lasting, reason);
        if (!file) return Fail("its draft " + reason);
        draft = lasting;
        return true;
    }

    bool Write(std::string_view bytes) {
        if (!error.empty()) return false;
        return WriteAll(file.Get(), bytes) ||
               Fail("could not be written to its end", GetLastError());
    }

    bool Cut(std::uint64_t size) {
        if (!error.empty()) return false;
        return CutAt(file.Get(), size) || Fail("could not be written to its end", GetLastError());
    }

    bool Sync() {
        if (!error.empty()) return false;
        return FlushFileBuffers(file.Get()) ||
               Fail("could not be written to its end", GetLastError());
    }

    bool Keep() {
        if (!error.empty()) return false;
        if (draft.empty()) {
            file.Close();
            return true;
        }
        if (manner.leavesSame && IsSameAsOld()) {
            Discard();
            return true;
        }
        if (!FlushFileBuffers(file.Get()) ||
            (!manner.isLasting && !GoesWhenClosed(file.Get(), false)))
            return Fail("could not be written to its end", GetLastError());
        file.Close();
        return PutInPlace();
    }

    bool IsSameAsOld() const {
        const Handle present(CreateFileW(target.c_str(), GENERIC_READ,
                                         FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                         nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
        return present && HoldTheSame(file.Get(), present.Get());
    }

    /** The file that is replaced passes its attributes and its rights on. */
    bool PutInPlace() {
        DWORD number = 0;
        for (int i = 0; i < kTries; ++i) {
            if (Move()) {
                draft.clear();
                return true;
            }
            number = GetLastError();
            if (!IsOthersDoing(number)) break;
            Sleep(kPause);
        }
        return Fail("cannot be written", number);
    }

    bool Move() const {
        if (manner.startsAfresh) {
            SetFileAttributesW(target.c_str(), FILE_ATTRIBUTE_NORMAL);
            return MoveFileExW(draft.c_str(), target.c_str(),
                               MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
        }
        if (ReplaceFileW(target.c_str(), draft.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS,
                         nullptr, nullptr))
            return true;
        return GetLastError() == ERROR_FILE_NOT_FOUND &&
               MoveFileExW(draft.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH) != 0;
    }

    void Discard() {
        file.Close();
        if (!draft.empty()) DeleteFileW(draft.c_str());
        draft.clear();
    }
};

NewFile::NewFile(const fs::path& path, Manner manner) : state(std::make_unique<State>()) {
    state->manner = manner;
    state->Open(path);
}

NewFile::~NewFile() = default;

bool NewFile::Write(std::string_view bytes) {
    return state->Write(bytes);
}

std::uint64_t NewFile::Found() const {
    LARGE_INTEGER size{};
    const bool isKnown = GetFileSizeEx(state->file.Get(), &size) != 0;
    return isKnown ? static_cast<std::uint64_t>(size.QuadPart) : 0;
}

bool NewFile::Cut(std::uint64_t size) {
    return state->Cut(size);
}

bool NewFile::Sync() {
    return state->Sync();
}

void NewFile::Discard() {
    state->Discard();
}

bool NewFile::Keep() {
    return state->Keep();
}

const std::string& NewFile::Error() const {
    return state->error;
}

}  // namespace files
