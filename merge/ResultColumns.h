#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "merge/BlockWriter.h"
#include "merge/RecordReader.h"

namespace linewright {

/** What may be written for a row. */
enum class Result {
    kBarcode,
    kStatus,
    kMessage,
    kWarning,
    /** The family, its size in points, and what stands below the bars. */
    kFont,
    kSize,
    kText,
    /** What the scanners say and read. */
    kScan,
    kRead,
    /** Of a refused row: where it began, and why. */
    kLine,
    kReason,
};
inline constexpr std::size_t kResultCount = 11;

std::string_view NameOf(Result result);
std::optional<Result> ResultOf(std::string_view name);

/** What columns of results are called, in which nothing of the file's is overwritten unless that is
 *  asked for. Texts are UTF-8. */
struct ResultNames {
    /** In front of the names that are not chosen. */
    std::string prefix;
    std::map<Result, std::string> chosen;
    /** A column of the file that has the name of one is written over. */
    bool isReplacing = false;
};

/** The columns of results beside those of a file. */
class ResultColumns {
  public:
    /** Throws Failure where the file, with these columns, has a name of a result already. */
    ResultColumns(std::vector<Result> results, const std::vector<std::string>& fileColumns,
                  const ResultNames& names, bool keepsInput, char separator);

    /** What the columns are called, in their order. */
    const std::vector<std::string>& Names() const { return resultNames; }

    /** Sets what the next row gets; the text is borrowed until it is written. */
    void Set(Result result, std::string_view text) {
        values[static_cast<std::size_t>(result)] = text;
    }
    void Clear() { values.fill({}); }
    /** Appends a row with its results; everything else as it stands in the file. A short row is
     *  filled up, what a long one has too much follows at the end. */
    void Append(BlockWriter& out, const Record& row) const;
    /** Appends the header with the names. */
    void AppendHeader(BlockWriter& out, const Record& header);
    /** The same as Append for a whole row whose barcode needs no quotes, whose status is 0 and
     * which has no other result. */
    void AppendPlain(BlockWriter& out, const Record& row, std::string_view barcode) const;

    bool IsReplacing() const { return isReplacing; }
    /** Whether a column of the file is written over. */
    bool IsReplaced(std::string_view column) const;
    /** Whether a value of such characters may need quotes. */
    bool IsDelimiterAmong(std::string_view characters) const {
        return characters.find(delimiter) != std::string_view::npos;
    }

  private:
    void AppendField(BlockWriter& out, std::string_view value) const;
    void AppendInput(BlockWriter& out, const Record& row) const;

    std::vector<Result> kinds;
    std::vector<std::string> resultNames;
    std::size_t width;
    bool isInputKept;
    char delimiter;
    /** The column of the file that each result replaces; none is added behind. */
    std::vector<std::optional<std::size_t>> replaced;
    bool isReplacing = false;
    std::array<std::string_view, kResultCount> values{};
    /** What stands around a plain row's barcode. */
    PlainResults plain;
};

}  // namespace linewright
