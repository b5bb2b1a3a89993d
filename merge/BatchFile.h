#pragma once

#include <istream>
#include <string>
#include <string_view>

#include "merge/Batch.h"

namespace linewright {

/** All of a file by its UTF-8 name, or of standard input for "-". Throws Failure. */
std::string ReadInput(const std::string& name, std::istream& standardInput);

/** A batch file taken apart: its rows, and what they ask for. */
class BatchFile {
  public:
    /** `text` and `options` must outlive it; `name` stands in front of what is wrong with the file.
     *  Throws Failure. */
    BatchFile(std::string_view text, const std::string& name, const BatchOptions& options);

    const CsvFile& File() const { return file; }
    const BatchColumns& Columns() const { return *columns; }

  private:
    CsvFile file;
    std::optional<BatchColumns> columns;
};

}  // namespace linewright
