#pragma once

#include <chrono>
#include <filesystem>
#include <memory>

namespace files {

/**
 * A lock that one process at a time holds on a folder, as long as this lives. It keeps nobody from
 * the folder who does not ask for it. Where no lock can be had (no such folder, no permission, a
 * file system without locks, another one that does not let go of it) there is none. Two of
 * one process exclude each other too. Throws nothing but std::bad_alloc.
 */
class FolderLock {
  public:
    explicit FolderLock(const std::filesystem::path& folder,
                        std::chrono::milliseconds patience = std::chrono::seconds(10));
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    ~FolderLock();

    bool IsHeld() const { return state != nullptr; }

  private:
    struct State;
    std::unique_ptr<State> state;
};

}  // namespace files
