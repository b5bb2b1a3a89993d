#pragma once

#include <string>
#include <string_view>

#include "files/NewFile.h"
#include "merge/ByteSink.h"

namespace linewright {

/** A file that appears whole or not at all: see files::NewFile. Every failure is thrown as a
 * Failure that names the file. */
class OutputFile : public ByteSink {
  public:
    /** `fileName` is UTF-8. */
    explicit OutputFile(const std::string& fileName);

    void Write(std::string_view bytes) override;
    void Keep();

  private:
    [[noreturn]] void Fail() const;

    std::string name;
    files::NewFile file;
};

}  // namespace linewright
