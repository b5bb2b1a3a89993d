#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace files {

/**
 * A file that stays whatever becomes of the process, and that one process at a time has open. It is
 * made where it is not there; no link is followed, and what is there must be the user's own regular
 * file under this one name.
 *
 * Once an operation has failed all further ones do, and Error() is the first reason. One thread at
 * a time; throws nothing but std::bad_alloc.
 */
class OwnFile {
  public:
    explicit OwnFile(const std::filesystem::path& path);
    OwnFile(const OwnFile&) = delete;
    OwnFile& operator=(const OwnFile&) = delete;
    ~OwnFile();

    /** All that is in it. */
    std::string Read();
    /** Leaves the first `size` bytes, behind which it is written on. */
    bool Cut(std::uint64_t size);
    bool Write(std::string_view bytes);
    /** Puts what was written on the disk itself. */
    bool Sync();
    bool Remove();

    /** What went wrong, to follow the file's name; "" as long as nothing has. */
    const std::string& Error() const;

  private:
    struct State;
    std::unique_ptr<State> state;
};

}  // namespace files
