#pragma once

#include <array>
#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>

#include "files/NewFile.h"

namespace linewright {

/** A file that appears whole or not at all, as a stream: see files::NewFile. Every failure is
 *  thrown as a Failure that names the file. */
class OutputFile {
  public:
    /** `fileName` is UTF-8. */
    explicit OutputFile(const std::string& fileName);

    std::ostream& Stream() { return stream; }
    void Keep();

  private:
    /** Gathers what is written into larger pieces. */
    class Buffer : public std::streambuf {
      public:
        explicit Buffer(files::NewFile& writtenTo) : file(writtenTo) {
            setp(piece.data(), piece.data() + piece.size());
        }

      private:
        int_type overflow(int_type character) override;
        int sync() override;

        files::NewFile& file;
        std::array<char, 65536> piece;
    };

    [[noreturn]] void Fail() const;

    std::string name;
    files::NewFile file;
    Buffer buffer{file};
    std::ostream stream{&buffer};
};

}  // namespace linewright
