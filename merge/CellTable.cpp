#include "merge/CellTable.h"

#include <algorithm>
#include <iostream>
#include <utility>

#include "merge/Csv.h"
#include "merge/RowFile.h"

namespace linewright {

namespace {

constexpr std::size_t kMostCells = std::size_t{1} << 28;
constexpr std::size_t kRowsBetweenLooks = 1024;

/** Text that is there as a whole. */
class TextSource : public ByteSource {
  public:
    explicit TextSource(std::string_view whole) : text(whole) {}

    std::size_t Read(char* block, std::size_t capacity) override {
        const std::size_t count = text.copy(block, capacity);
        text.remove_prefix(count);
        return count;
    }

  private:
    std::string_view text;
};

std::vector<std::string> CellsOf(const Record& record) {
    std::vector<std::string> cells;
    cells.reserve(record.fields.size());
    for (const std::string_view field : record.fields) cells.push_back(CsvValue(field));
    return cells;
}

CellTable Split(std::string_view text) {
    CellTable table;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find_first_of("\r\n"));
        std::vector<std::string> row;
        for (std::size_t begin = 0; begin <= line.size();) {
            const std::size_t end = std::min(line.find('\t', begin), line.size());
            row.emplace_back(line.substr(begin, end - begin));
            begin = end + 1;
        }
        if (!line.empty()) table.Add(std::move(row));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
    return table;
}

bool HasDigit(const std::string& text) {
    return std::any_of(text.begin(), text.end(),
                       [](char byte) { return byte >= '0' && byte <= '9'; });
}

}  // namespace

void CellTable::Add(std::vector<std::string> row) {
    if (row.size() > width) {
        width = row.size();
        if (width * (rows.size() + 1) > kMostCells) throw Failure("there are too many cells");
        for (std::vector<std::string>& earlier : rows) earlier.resize(width);
    }
    row.resize(width);
    rows.push_back(std::move(row));
}

void CellTable::Append(CellTable&& other) {
    rows.reserve(rows.size() + other.rows.size());
    for (std::vector<std::string>& row : other.rows) Add(std::move(row));
}

CellTable TableOfCells(std::string_view text) {
    try {
        TextSource source(text);
        RecordReader reader(source, text.size() + 1);
        reader.SetDelimiter('\t');
        CellTable table;
        while (reader.Next()) {
            if (!reader.Current().IsBlank()) table.Add(CellsOf(reader.Current()));
        }
        return table;
    } catch (const Failure&) {
        return Split(text);
    }
}

CellTable TableOfFile(const std::string& name, std::optional<Encoding> encoding,
                      const GoesOn& goesOn) {
    RowOptions options;
    options.encoding = encoding;
    options.hasHeader = false;
    // No column is asked for but the first one, which there always is.
    options.type = "";
    options.dataColumn = "1";
    RowFile file(name, std::cin, options);
    CellTable table;
    while (file.Next()) {
        if (!file.Row().IsBlank()) file.Named([&] { table.Add(CellsOf(file.Row())); });
        if (table.rows.size() % kRowsBetweenLooks != 0) continue;
        const auto length = file.Length();
        const bool isKnown = length && *length > 0;
        if (!goesOn(isKnown ? static_cast<int>(100 * file.Position() / *length) : 0)) break;
    }
    return table;
}

bool HasNames(const CellTable& table) {
    if (table.rows.size() < 2) return false;
    const std::vector<std::string>& first = table.rows[0];
    const std::vector<std::string>& second = table.rows[1];
    return std::none_of(first.begin(), first.end(),
                        [](const auto& cell) { return cell.empty() || HasDigit(cell); }) &&
           std::any_of(second.begin(), second.end(), HasDigit);
}

}  // namespace linewright
