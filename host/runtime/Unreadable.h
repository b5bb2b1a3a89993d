#pragma once

#include <filesystem>
#include <set>
#include <string>

namespace host {

/** What is there and could not be read. Whoever asks for it gets nothing, as if it were not there;
 *  so that it is not lost, it is not written either. */
class Unreadable {
  public:
    /** Says so on standard error, once for each. `path` is a file or a folder. */
    void Add(const std::filesystem::path& path, const std::string& reason);
    void Remove(const std::filesystem::path& path) { fPaths.erase(path); }
    /** Whether this is one of them, or lies in one. */
    bool Holds(const std::filesystem::path& path) const;

  private:
    std::set<std::filesystem::path> fPaths;
};

}  // namespace host
