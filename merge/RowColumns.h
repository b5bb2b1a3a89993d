#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "merge/Encoding.h"
#include "merge/RecordReader.h"
#include "requests/BarcodeOutcome.h"

namespace linewright {

/** How a file of rows is read. Texts are UTF-8. */
struct RowOptions {
    /** Found from the file unless stated. */
    std::optional<Encoding> encoding;
    std::optional<char> delimiter;
    /** Whether the first row names the columns; else their names are 1, 2, 3, … */
    bool hasHeader = true;
    /** In bytes of UTF-8. */
    std::size_t maxRecord = std::size_t{64} << 20;
    /** Given, they take the place of the file's own column. */
    std::optional<std::string> type;
    bool isCheckWanted = false;
    std::optional<double> ratio;
    /** The columns that hold type and data. */
    std::string typeColumn = "type";
    std::string dataColumn = "data";
    /** The column that says what each barcode is for. */
    std::optional<std::string> titleColumn;
    bool isStrict = false;
};

/** What a row asks for: views into it, or into memory of the columns, until the next row. */
struct RowWish {
    std::string_view type;
    std::string_view data;
    std::uint8_t checkCharacter = 0;
    double ratio = 2.0;
};

/** The columns of a file in which the wishes stand. */
class RowColumns {
  public:
    /** Throws Failure, naming the column, when one is missing or stands twice. The options are
     *  borrowed. */
    RowColumns(const Record& first, const RowOptions& wanted);

    /** Of the columns, without quotes. */
    const std::vector<std::string>& Names() const { return names; }

    /** What a row asks for. Throws Failure with a sentence for a row that cannot be understood. */
    RowWish WishOf(const Record& row) {
        if (!isPlain || row.fieldCount != width) return CloselyWishOf(row);
        const std::string_view typeField = row.fields[*type];
        const std::string_view dataField = row.fields[data];
        if (!IsBare(typeField) || dataField.starts_with('"')) return CloselyWishOf(row);
        return {typeField, dataField, plainCheck, plainRatio};
    }
    /** The same as a copy, with the options' strictness. */
    BarcodeWish BarcodeWishOf(const Record& row);
    BarcodeWish BarcodeWishOf(const RowWish& wish) const;
    /** What a row's barcode is for; "" where nothing says it. */
    std::string TitleOf(const Record& row) const;

  private:
    RowWish CloselyWishOf(const Record& row);
    /** Whether a field stands without quotes, and without what is trimmed. */
    static bool IsBare(std::string_view field) {
        const auto isTrimmed = [](char character) {
            return character == ' ' || character == '\t' || character == '"';
        };
        return !field.empty() && !isTrimmed(field.front()) && !isTrimmed(field.back());
    }

    const RowOptions& options;
    std::vector<std::string> names;
    std::size_t width;
    /** Whether a row's type has a column, and check and ratio have none. */
    bool isPlain;
    std::uint8_t plainCheck;
    double plainRatio;
    std::optional<std::size_t> type;
    std::size_t data;
    std::optional<std::size_t> check;
    std::optional<std::size_t> ratio;
    std::optional<std::size_t> title;
    /** Of values with quotes inside. */
    std::string typeMemory;
    std::string dataMemory;
};

/** The place of a column; none where there is none. Throws Failure where it stands twice. */
std::optional<std::size_t> FindColumn(const std::vector<std::string>& names, std::string_view name);

}  // namespace linewright
