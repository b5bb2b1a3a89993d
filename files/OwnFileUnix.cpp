#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <system_error>

#include "files/OpenOwn.h"
#include "files/OwnFile.h"

namespace fs = std::filesystem;

namespace files {

Descriptor OpenOwn(int folder, const std::string& name, std::string& error) {
    Descriptor file(openat(folder, name.c_str(),
                           O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC,
                           S_IRUSR | S_IWUSR));
    struct stat status {};
    if (!file) {
        error = errno == ELOOP ? "is a link"
                               : "cannot be written: " + std::generic_category().message(errno);
    } else if (fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode) ||
               status.st_uid != geteuid() || status.st_nlink != 1) {
        error = "is not a file of this user's own";
    } else if (flock(file.Get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        error = "is being written by another process";
    } else if (struct stat present{};
               fstatat(folder, name.c_str(), &present, AT_SYMLINK_NOFOLLOW) != 0 ||
               present.st_ino != status.st_ino || present.st_dev != status.st_dev) {
        error = "was exchanged by another process";
    }
    return error.empty() ? std::move(file) : Descriptor();
}

bool WriteAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = write(file, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

struct OwnFile::State {
    std::string error;
    Descriptor folder;
    std::string name;
    Descriptor file;

    bool Must(bool isDone) {
        if (!isDone && error.empty()) {
            error = "could not be written to its end: " + std::generic_category().message(errno);
        }
        return error.empty();
    }
};

OwnFile::OwnFile(const fs::path& path) : state(std::make_unique<State>()) {
    const fs::path parent = path.parent_path();
    state->name = path.filename().native();
    state->folder =
        Descriptor(open(parent.empty() ? "." : parent.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!state->folder) {
        state->error = "cannot be written: " + std::generic_category().message(errno);
    } else {
        state->file = OpenOwn(state->folder.Get(), state->name, state->error);
    }
}

OwnFile::~OwnFile() = default;

std::string OwnFile::Read() {
    std::string content;
    std::array<char, 16384> piece;
    ssize_t count = 0;
    while (state->error.empty() && (count = pread(state->file.Get(), piece.data(), piece.size(),
                                                  static_cast<off_t>(content.size()))) > 0) {
        content.append(piece.data(), static_cast<std::size_t>(count));
    }
    if (count < 0) state->error = "cannot be read: " + std::generic_category().message(errno);
    return content;
}

bool OwnFile::Cut(std::uint64_t size) {
    const auto end = static_cast<off_t>(size);
    return state->Must(state->error.empty() && ftruncate(state->file.Get(), end) == 0 &&
                       lseek(state->file.Get(), end, SEEK_SET) == end);
}

bool OwnFile::Write(std::string_view bytes) {
    return state->Must(state->error.empty() && WriteAll(state->file.Get(), bytes));
}

bool OwnFile::Sync() {
    // Its folder too, which says that it is there; a system that cannot do this says so here.
    if (state->error.empty()) fsync(state->folder.Get());
    return state->Must(state->error.empty() && fsync(state->file.Get()) == 0);
}

bool OwnFile::Remove() {
    return state->Must(state->error.empty() &&
                       unlinkat(state->folder.Get(), state->name.c_str(), 0) == 0);
}

const std::string& OwnFile::Error() const {
    return state->error;
}

}  // namespace files
