#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "merge/Encoding.h"

namespace linewright {

/** Cells of a spreadsheet or of a file, without quotes, UTF-8. Blank lines are no rows. */
struct CellTable {
    std::vector<std::vector<std::string>> rows{};
    /** As many cells have all rows; short ones are filled up with empty cells. */
    std::size_t width = 0;

    /** Adds a row, and widens all where it is longer. */
    void Add(std::vector<std::string> row);
    void Append(CellTable&& other);
};

/** Cells as programs put them on a clipboard: tabs and line ends between them, quotes around those
 *  that have one inside. Where quotes are not closed they stand for themselves. */
CellTable TableOfCells(std::string_view text);

/** How much of a file was read, in per cent; false ends the reading. */
using GoesOn = std::function<bool(int perCent)>;

/** A whole file, whose delimiter is found, and its encoding where none is stated. What was read
 *  until then where the reading was ended. Throws Failure, which begins with the file's name: an
 *  EncodingFailure where the encoding is another one. */
CellTable TableOfFile(const std::string& name, std::optional<Encoding> encoding,
                      const GoesOn& goesOn);

/** Whether a first row is more likely the names of columns than data: no cell is empty or has a
 *  digit, and one below has a digit. */
bool HasNames(const CellTable& table);

}  // namespace linewright
