#include <dirent.h>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/vfs.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <optional>
#include <system_error>

#include "files/Descriptor.h"
#include "files/DraftAtRisk.h"
#include "files/DraftName.h"
#include "files/NewFile.h"
#include "files/OpenOwn.h"

namespace fs = std::filesystem;

namespace files {

namespace {

constexpr int kMaxLinks = 40;
constexpr std::size_t kPieceSize = 16384;
constexpr mode_t kAnyoneWrites = S_IWUSR | S_IWGRP | S_IWOTH;

std::string ReadLink(int link) {
    std::string text(256, '\0');
    for (;;) {
        const ssize_t length = readlinkat(link, "", text.data(), text.size());
        if (length < 0) return "";
        if (static_cast<std::size_t>(length) < text.size()) {
            text.resize(static_cast<std::size_t>(length));
            return text;
        }
        text.resize(2 * text.size());
    }
}

/** Whether a link is one of those by which the kernel names what a process has open. */
bool NamesSomethingOpen(int link) {
    struct statfs system {};
    return fstatfs(link, &system) == 0 && system.f_type == PROC_SUPER_MAGIC;
}

std::size_t ReadAt(int file, off_t position, std::array<char, kPieceSize>& piece) {
    const ssize_t count = pread(file, piece.data(), piece.size(), position);
    return count < 0 ? 0 : static_cast<std::size_t>(count);
}

bool HoldTheSame(int first, int second) {
    struct stat a {};
    struct stat b {};
    if (fstat(first, &a) != 0 || fstat(second, &b) != 0 || a.st_size != b.st_size) return false;
    std::array<char, kPieceSize> piece;
    std::array<char, kPieceSize> other;
    off_t position = 0;
    while (position < a.st_size) {
        const std::size_t count = ReadAt(first, position, piece);
        if (count == 0 || ReadAt(second, position, other) != count ||
            !std::equal(piece.begin(), piece.begin() + count, other.begin()))
            return false;
        position += static_cast<off_t>(count);
    }
    return true;
}

/** Removes a draft that is old, and whose lock nobody has. */
void RemoveIfStale(int folder, const char* name) {
    const Descriptor draft(openat(folder, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status {};
    if (!draft || fstat(draft.Get(), &status) != 0 || !S_ISREG(status.st_mode)) return;
    const auto age =
        std::chrono::system_clock::now() - std::chrono::system_clock::from_time_t(status.st_mtime);
    if (age > kStaleAge && flock(draft.Get(), LOCK_EX | LOCK_NB) == 0) unlinkat(folder, name, 0);
}

void RemoveStaleDrafts(int folder) {
    const int listed = openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    DIR* const entries = listed < 0 ? nullptr : fdopendir(listed);
    if (entries == nullptr) return;
    while (const dirent* const entry = readdir(entries)) {
        if (IsDraftName(entry->d_name)) RemoveIfStale(folder, entry->d_name);
    }
    closedir(entries);
}

/** What a new file may be by the process's mask, which can be read by setting it only; meanwhile
 *  what other threads make is their user's alone. */
mode_t ModeOfNewFiles() {
    const mode_t mask = umask(S_IRWXG | S_IRWXO);
    umask(mask);
    return 0666 & ~mask;
}

}  // namespace

/** The folder of the file is held open, so that nobody can exchange it meanwhile. */
struct NewFile::State {
    Manner manner;
    std::string error;
    Descriptor folder;
    std::string name;
    /** What has the name; nothing, or a link that nothing lies behind, leaves it empty. */
    std::optional<struct stat> old;
    std::string draftName;
    std::optional<DraftAtRisk> atRisk;
    Descriptor file;

    ~State() {
        if (!manner.isLasting) Discard();
    }

    bool Fail(std::string_view what) {
        if (error.empty()) error = what;
        return false;
    }
    bool Fail(std::string_view what, int number) {
        return Fail(std::string(what) + ": " + std::generic_category().message(number));
    }

    bool Open(const fs::path& path) {
        if (!Locate(path)) return false;
        if (!old || S_ISREG(old->st_mode) || manner.startsAfresh) return OpenDraft();
        if (!manner.writesDevices) return Fail("is no file");
        file = Descriptor(openat(folder.Get(), name.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY));
        return file ? true : Fail("cannot be written", errno);
    }

    /** Finds folder and name, through links, and sees to it that what is there may be replaced. */
    bool Locate(const fs::path& path) {
        fs::path next = path;
        for (int links = 0; links <= kMaxLinks; ++links) {
            name = next.filename().native();
            if (next.empty()) return Fail("is no name of a file");
            if (name.empty() || name == "." || name == "..") return Fail("is a folder");
            if (!OpenFolder(next.parent_path())) return Fail("cannot be written", errno);
            const Descriptor entry(
                openat(folder.Get(), name.c_str(), O_PATH | O_NOFOLLOW | O_CLOEXEC));
            if (!entry && errno == ENOENT) return true;
            struct stat status {};
            if (!entry || fstat(entry.Get(), &status) != 0) return Fail("cannot be written", errno);
            if (!S_ISLNK(status.st_mode) || manner.startsAfresh) return MayReplace(status);
            if (status.st_uid != geteuid() && status.st_uid != 0)
                return Fail("is a link that belongs to somebody else");
            if (NamesSomethingOpen(entry.Get()) &&
                fstatat(folder.Get(), name.c_str(), &status, 0) == 0 && !S_ISREG(status.st_mode))
                return MayReplace(status);
            next = ReadLink(entry.Get());
        }
        return Fail("cannot be written", ELOOP);
    }

    /** Relative paths start at the folder that is open, the process's own at first. */
    bool OpenFolder(const fs::path& path) {
        const int from = folder ? folder.Get() : AT_FDCWD;
        const char* const text = path.empty() ? "." : path.c_str();
        Descriptor opened(openat(from, text, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        // A folder may be entered that may not be listed.
        if (!opened && errno == EACCES)
            opened = Descriptor(openat(from, text, O_PATH | O_DIRECTORY | O_CLOEXEC));
        folder = std::move(opened);
        return static_cast<bool>(folder);
    }

    bool MayReplace(const struct stat& status) {
        old = status;
        if (S_ISDIR(status.st_mode)) return Fail("is a folder");
        if (!S_ISREG(status.st_mode) || manner.startsAfresh) return true;
        const bool isReadOnly = (status.st_mode & kAnyoneWrites) == 0 ||
                                faccessat(folder.Get(), name.c_str(), W_OK, AT_EACCESS) != 0;
        return isReadOnly ? Fail("is read-only") : true;
    }

    bool OpenDraft() {
        RemoveStaleDrafts(folder.Get());
        if (manner.isLasting) return OpenLastingDraft();
        draftName = NewDraftName();
        atRisk.emplace(folder.Get(), draftName);
        file = Descriptor(openat(folder.Get(), draftName.c_str(),
                                 O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                                 S_IRUSR | S_IWUSR));
        if (!file) {
            atRisk.reset();
            draftName.clear();
            return Fail("cannot be written", errno);
        }
        // Where there are no locks no other process gets one either, and stale drafts stay.
        flock(file.Get(), LOCK_EX | LOCK_NB);
        return true;
    }

    bool OpenLastingDraft() {
        std::string reason;
        const std::string lasting = LastingDraftName(name).native();
        file = OpenOwn(folder.Get(), lasting, reason);
        if (!file) return Fail("its draft " + lasting + ' ' + reason);
        draftName = lasting;
        return true;
    }

    bool Write(std::string_view bytes) {
        if (!error.empty()) return false;
        return WriteAll(file.Get(), bytes) || Fail("could not be written to its end", errno);
    }

    bool Cut(std::uint64_t size) {
        if (!error.empty()) return false;
        const auto end = static_cast<off_t>(size);
        return (ftruncate(file.Get(), end) == 0 && lseek(file.Get(), end, SEEK_SET) == end) ||
               Fail("could not be written to its end", errno);
    }

    bool Sync() {
        if (!error.empty()) return false;
        return fsync(file.Get()) == 0 || Fail("could not be written to its end", errno);
    }

    bool Keep() {
        if (!error.empty()) return false;
        if (draftName.empty())
            return file.Close() ? true : Fail("could not be written to its end", errno);
        if (manner.leavesSame && IsSameAsOld()) {
            Discard();
            return true;
        }
        if (!TakeMode() || fsync(file.Get()) != 0)
            return Fail("could not be written to its end", errno);
        if (renameat(folder.Get(), draftName.c_str(), folder.Get(), name.c_str()) != 0)
            return Fail("cannot be written", errno);
        atRisk.reset();
        draftName.clear();
        // The file is whole either way; a system that cannot do this says so here.
        fsync(folder.Get());
        return file.Close() ? true : Fail("could not be written to its end", errno);
    }

    bool IsSameAsOld() const {
        const Descriptor present(
            openat(folder.Get(), name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        return present && HoldTheSame(file.Get(), present.Get());
    }

    bool TakeMode() const {
        if (!old || manner.startsAfresh) return fchmod(file.Get(), ModeOfNewFiles()) == 0;
        mode_t mode = old->st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
        struct stat draft {};
        if (fstat(file.Get(), &draft) != 0) return false;
        const bool isOthers = draft.st_uid != old->st_uid || draft.st_gid != old->st_gid;
        // Where the group cannot be the old one, the new one gets none of its rights.
        if (isOthers && fchown(file.Get(), old->st_uid, old->st_gid) != 0 &&
            fchown(file.Get(), static_cast<uid_t>(-1), old->st_gid) != 0)
            mode &= ~static_cast<mode_t>(S_IRWXG);
        return fchmod(file.Get(), mode) == 0;
    }

    void Discard() {
        if (draftName.empty()) return;
        unlinkat(folder.Get(), draftName.c_str(), 0);
        atRisk.reset();
        draftName.clear();
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
    struct stat status {};
    const bool isKnown = fstat(state->file.Get(), &status) == 0;
    return isKnown ? static_cast<std::uint64_t>(status.st_size) : 0;
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
