#pragma once

#include <filesystem>
#include <fstream>
#include <ostream>
#include <string>

namespace linewright {

/** A file that appears whole or not at all: written beside its place, put there by Keep. Without
 *  Keep nothing is left of it. What is no ordinary file (a device, a pipe) is written directly.
 *  Every failure is thrown as a Failure that names the file. */
class OutputFile {
  public:
    /** `fileName` is UTF-8. */
    explicit OutputFile(const std::string& fileName);
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    ~OutputFile();

    std::ostream& Stream() { return stream; }
    void Keep();

  private:
    std::string name;
    std::filesystem::path target;
    std::filesystem::path written;
    std::ofstream stream;
    bool isKept = false;
};

}  // namespace linewright
