#pragma once

#include <ostream>
#include <string>
#include <string_view>

#include "merge/MergeOutput.h"
#include "merge/ResultColumns.h"
#include "merge/RowFile.h"

namespace linewright {

/** The rows of a file that were refused, as they were, with the line and the reason of each. */
class RejectFile {
  public:
    /** "-" is standard output, which is borrowed. Throws Failure. */
    RejectFile(const std::string& name, std::ostream& standardOutput, RowFile& rows,
               const ResultNames& names);

    void Add(const Record& row, const std::string& reason);
    void Keep() { output.Keep(); }

  private:
    ResultColumns columns;
    MergeOutput output;
};

}  // namespace linewright
