#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "files/NewFile.h"
#include "merge/ByteSink.h"

namespace linewright {

/** A file that appears whole or not at all: see files::NewFile. Every failure is thrown as a
 * Failure that names the file. */
class OutputFile : public ByteSink {
  public:
    /** `fileName` is UTF-8. A lasting one stays as a draft until it is kept or discarded, for who
     *  goes on with it. */
    explicit OutputFile(const std::string& fileName, bool isLasting = false);

    void Write(std::string_view bytes) override;
    void Keep();

    // Of a lasting one.

    /** How much of a draft was there. */
    std::uint64_t Found() const { return file.Found(); }
    /** Goes on behind the first `size` bytes. */
    void GoOnAt(std::uint64_t size);
    std::uint64_t Size() const { return written; }
    /** Puts what was written on the disk itself. */
    void Sync();
    void Discard() { file.Discard(); }

  private:
    void Must(bool isDone) const;

    std::string name;
    files::NewFile file;
    std::uint64_t written = 0;
};

}  // namespace linewright
