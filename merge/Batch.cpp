#include "merge/Batch.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>

#include "merge/Failure.h"
#include "text/Readable.h"

namespace linewright {

namespace {

/** As many as a spreadsheet has. */
constexpr std::size_t kMaxColumns = 16384;

std::vector<std::string> ResultColumns(const BatchOptions& options) {
    std::vector<std::string> names{"barcode", "status", "message", "warning"};
    if (options.isVerified) names.insert(names.end(), {"scan", "read"});
    return names;
}

std::vector<std::string> ValuesOf(const CsvRecord& record) {
    std::vector<std::string> values;
    for (const std::string_view field : record.fields) values.push_back(CsvValue(field));
    return values;
}

std::optional<std::size_t> FindColumn(const std::vector<std::string>& names,
                                      std::string_view name) {
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end()) return std::nullopt;
    if (std::find(found + 1, names.end(), name) != names.end()) {
        throw Failure(fmt::format("the column \"{}\" stands twice in the header", Readable(name)));
    }
    return static_cast<std::size_t>(found - names.begin());
}

std::size_t RequireColumn(const std::vector<std::string>& names, std::string_view name,
                          std::string_view advice) {
    const auto column = FindColumn(names, name);
    if (column) return *column;
    throw Failure(fmt::format("there is no column \"{}\"; the columns are \"{}\"; {}",
                              Readable(name),
                              Readable(fmt::format("{}", fmt::join(names, "\", \""))), advice));
}

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return "";
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

/** The number that a whole text is. */
template <class Number>
std::optional<Number> NumberOf(std::string_view text) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return number;
}

bool IsOneOf(std::string_view text, std::string_view a, std::string_view b) {
    const auto equals = [text](std::string_view word) {
        return std::equal(text.begin(), text.end(), word.begin(), word.end(),
                          [](char x, char y) { return (x | 0x20) == y; });
    };
    return equals(a) || equals(b);
}

std::uint8_t CheckOf(std::string_view cell) {
    const std::string_view text = Trimmed(cell);
    if (text.empty() || IsOneOf(text, "no", "false")) return 0;
    if (IsOneOf(text, "yes", "true")) return 1;
    const auto number = NumberOf<std::uint8_t>(text);
    if (number) return *number;
    throw Failure(fmt::format("the check \"{}\" is not yes, no or a whole number from 0 to 255",
                              Readable(cell)));
}

double RatioOf(std::string_view cell) {
    const std::string_view text = Trimmed(cell);
    if (text.empty()) return 2.0;
    const auto number = NumberOf<double>(text);
    if (number && (*number == 2.0 || *number == 2.5 || *number == 3.0)) return *number;
    throw Failure(fmt::format("the ratio \"{}\" is not 2, 2.5 or 3", Readable(cell)));
}

}  // namespace

BatchColumns::BatchColumns(const CsvRecord& header, const BatchOptions& wanted, char separator)
    : options(wanted),
      delimiter(separator),
      width(header.fields.size()),
      resultColumns(ResultColumns(wanted)) {
    if (width > kMaxColumns) {
        throw Failure(
            fmt::format("the header has {} columns; at most {} can be", width, kMaxColumns));
    }
    const std::vector<std::string> names = ValuesOf(header);
    if (!options.type) type = RequireColumn(names, "type", "--type names one type for all rows");
    if (std::find(resultColumns.begin(), resultColumns.end(), options.dataColumn) !=
        resultColumns.end()) {
        throw Failure(fmt::format("the column \"{}\" receives results and cannot hold the data",
                                  options.dataColumn));
    }
    data = RequireColumn(names, options.dataColumn, "--column names the one that holds the data");
    if (!options.isCheckWanted) check = FindColumn(names, "check");
    if (!options.ratio) ratio = FindColumn(names, "ratio");
    if (options.titleColumn) {
        title = RequireColumn(names, *options.titleColumn, "--title names the one of titles");
    }
    std::transform(resultColumns.begin(), resultColumns.end(), std::back_inserter(replaced),
                   [&names](std::string_view name) { return FindColumn(names, name); });
}

std::string BatchColumns::ValueAt(const CsvRecord& row, std::size_t column) const {
    return CsvValue(row.fields[column]);
}

BarcodeWish BatchColumns::WishOf(const CsvRecord& row) const {
    if (row.fields.size() != width) {
        throw Failure(
            fmt::format("the row has {} fields, the header {}", row.fields.size(), width));
    }
    BarcodeWish wish;
    wish.type = type ? Trimmed(ValueAt(row, *type)) : *options.type;
    wish.data = ValueAt(row, *data);
    wish.checkCharacter = check ? CheckOf(ValueAt(row, *check)) : options.isCheckWanted ? 1 : 0;
    wish.isStrict = options.isStrict;
    wish.isArticleNumber = options.isArticleNumber;
    wish.ratio = ratio ? RatioOf(ValueAt(row, *ratio)) : options.ratio.value_or(2.0);
    return wish;
}

std::string BatchColumns::TitleOf(const CsvRecord& row) const {
    return title && *title < row.fields.size() ? ValueAt(row, *title) : "";
}

std::string BatchColumns::HeaderLine(const CsvRecord& header) const {
    return Line(header, resultColumns);
}

std::string BatchColumns::RowLine(const CsvRecord& row, const RowResult& result) const {
    std::vector<std::string> results{result.barcode, result.status, result.message, result.warning};
    if (options.isVerified) results.insert(results.end(), {result.scan, result.read});
    return Line(row, results);
}

std::string BatchColumns::Line(const CsvRecord& row,
                               const std::vector<std::string>& results) const {
    std::vector<std::string> fields(row.fields.begin(), row.fields.end());
    const auto end = fields.begin() + static_cast<std::ptrdiff_t>(std::min(width, fields.size()));
    const std::vector<std::string> surplus(end, fields.end());
    fields.resize(width);
    for (std::size_t i = 0; i < results.size(); ++i) {
        std::string field = CsvField(results[i], delimiter);
        if (replaced[i]) {
            fields[*replaced[i]] = std::move(field);
        } else {
            fields.push_back(std::move(field));
        }
    }
    fields.insert(fields.end(), surplus.begin(), surplus.end());
    return fmt::format("{}{}", fmt::join(fields, std::string_view(&delimiter, 1)), row.ending);
}

}  // namespace linewright
