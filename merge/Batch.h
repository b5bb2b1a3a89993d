#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "merge/Csv.h"
#include "requests/BarcodeOutcome.h"

namespace linewright {

/** How the columns of a file are used. */
struct BatchOptions {
    /** Given, they take the place of the file's own column. */
    std::optional<std::string> type;
    bool isCheckWanted = false;
    std::optional<double> ratio;
    /** The column that holds the data; "data" by default. */
    std::string dataColumn = "data";
    /** The column that says what each barcode is for. */
    std::optional<std::string> titleColumn;
    std::optional<char> delimiter;
    bool isStrict = false;
    /** The data are article numbers, to be brought to their types' forms. */
    bool isArticleNumber = false;
    /** Draws each barcode with the fonts in `fonts` (a folder, UTF-8) and has it read. */
    bool isVerified = false;
    std::string fonts;
};

/** What is written for one row. */
struct RowResult {
    std::string barcode;
    std::string status;
    std::string message;
    std::string warning;
    /** What the scanners say and read, where they are asked. */
    std::string scan;
    std::string read;
};

/** The columns of a batch file: where the wishes stand and where the results go. */
class BatchColumns {
  public:
    /** Throws Failure, naming the column, when one is missing or stands twice. */
    BatchColumns(const CsvRecord& header, const BatchOptions& wanted, char separator);

    /** What a row asks for. Throws Failure with a sentence for a row that cannot be understood. */
    BarcodeWish WishOf(const CsvRecord& row) const;
    /** What a row's barcode is for; "" where nothing says it. */
    std::string TitleOf(const CsvRecord& row) const;
    /** The header with the columns that are added. */
    std::string HeaderLine(const CsvRecord& header) const;
    /** A row with its result in the columns for it; everything else as it stands in the file. A
     *  short row is filled up, what a long one has too much follows at the end. */
    std::string RowLine(const CsvRecord& row, const RowResult& result) const;

  private:
    std::string ValueAt(const CsvRecord& row, std::size_t column) const;
    std::string Line(const CsvRecord& row, const std::vector<std::string>& results) const;

    const BatchOptions& options;
    char delimiter;
    std::size_t width;
    std::optional<std::size_t> type;
    std::optional<std::size_t> data;
    std::optional<std::size_t> check;
    std::optional<std::size_t> ratio;
    std::optional<std::size_t> title;
    /** The columns of results, and where the file has them already. */
    std::vector<std::string> resultColumns;
    std::vector<std::optional<std::size_t>> replaced;
};

}  // namespace linewright
