#pragma once

#include <filesystem>
#include <string>

namespace host {

/** A shared library, loaded as long as this lives. */
class Library {
  public:
    Library() = default;
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
    ~Library() { Unload(); }

    /** Throws std::runtime_error with the reason; `what` it is that cannot be loaded. */
    void Load(const std::filesystem::path& path, const std::string& what);
    void Unload();
    /** An exported function, or nullptr. */
    void (*Find(const char* name) const)();

  private:
    void* fHandle = nullptr;
};

}  // namespace host
