#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <chrono>
#include <thread>

#include "files/Descriptor.h"
#include "files/FolderLock.h"

namespace files {

namespace {

constexpr std::chrono::milliseconds kPause{2};

}  // namespace

struct FolderLock::State {
    Descriptor folder;
};

FolderLock::FolderLock(const std::filesystem::path& folder, std::chrono::milliseconds patience) {
    Descriptor opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!opened) return;
    const auto end = std::chrono::steady_clock::now() + patience;
    while (flock(opened.Get(), LOCK_EX | LOCK_NB) != 0) {
        const bool isHeldByAnother = errno == EWOULDBLOCK || errno == EINTR;
        if (!isHeldByAnother || std::chrono::steady_clock::now() >= end) return;
        std::this_thread::sleep_for(kPause);
    }
    state = std::make_unique<State>(State{std::move(opened)});
}

FolderLock::~FolderLock() = default;

}  // namespace files
