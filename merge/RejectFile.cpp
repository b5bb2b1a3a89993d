#include "merge/RejectFile.h"

namespace linewright {

RejectFile::RejectFile(const std::string& name, std::ostream& standardOutput, RowFile& rows,
                       const ResultNames& names)
    : columns(rows.Named([&] {
          return ResultColumns({Result::kLine, Result::kReason}, rows.Columns().Names(), names,
                               true, rows.Delimiter());
      })),
      output(name, standardOutput, rows.FileEncoding(), false) {
    if (rows.HasByteOrderMark()) output.Writer().Append(kByteOrderMark);
    if (rows.Header()) columns.AppendHeader(output.Writer(), *rows.Header());
}

void RejectFile::Add(const Record& row, const std::string& reason) {
    const std::string line = std::to_string(row.line);
    const std::string fitted = output.Writer().Fitted(reason);
    columns.Clear();
    columns.Set(Result::kLine, line);
    columns.Set(Result::kReason, fitted);
    columns.Append(output.Writer(), row);
}

}  // namespace linewright
