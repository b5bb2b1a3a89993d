#include "files/DraftAtRisk.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <mutex>

#include "files/DraftName.h"

namespace files {

/** What the signal's handler reads: plain memory, and a descriptor that says whether it counts. */
struct Entry {
    std::atomic<int> folder = kNone;
    std::array<char, kDraftNameLength + 1> name{};
    bool isTaken = false;

    static constexpr int kNone = -1;
};

namespace {

static_assert(std::atomic<int>::is_always_lock_free);

constexpr std::array kSignals{SIGINT, SIGTERM, SIGHUP, SIGPIPE};

std::array<Entry, 64> entries;
std::mutex entriesMutex;  // guards what only the threads touch: isTaken, drafts, handlers
std::size_t drafts = 0;

void RemoveDrafts() {
    for (const Entry& entry : entries) {
        const int folder = entry.folder.load(std::memory_order_acquire);
        if (folder != Entry::kNone) unlinkat(folder, entry.name.data(), 0);
    }
}

/** The action is the system's own again when this runs, so that the process ends as if this had
 *  not been here. */
void EndBySignal(int signal) {
    RemoveDrafts();
    raise(signal);
}

void (*HandlerOf(int signal))(int) {
    struct sigaction action {};
    sigaction(signal, nullptr, &action);
    return action.sa_handler;
}

void SetHandler(int signal, void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigaction(signal, &action, nullptr);
}

void Replace(void (*from)(int), void (*to)(int)) {
    for (const int signal : kSignals) {
        if (HandlerOf(signal) == from) SetHandler(signal, to);
    }
}

}  // namespace

DraftAtRisk::DraftAtRisk(int folder, const std::string& name) {
    static const int registered = std::at_quick_exit(RemoveDrafts);
    static_cast<void>(registered);
    const std::lock_guard lock(entriesMutex);
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [](const Entry& candidate) { return !candidate.isTaken; });
    if (found == entries.end()) return;
    entry = &*found;
    entry->isTaken = true;
    name.copy(entry->name.data(), kDraftNameLength);
    entry->folder.store(folder, std::memory_order_release);
    if (drafts++ == 0) Replace(SIG_DFL, EndBySignal);
}

DraftAtRisk::~DraftAtRisk() {
    if (entry == nullptr) return;
    const std::lock_guard lock(entriesMutex);
    entry->folder.store(Entry::kNone, std::memory_order_release);
    entry->isTaken = false;
    if (--drafts == 0) Replace(EndBySignal, SIG_DFL);
}

}  // namespace files
