#include "merge/RowColumns.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>

#include "merge/Csv.h"
#include "merge/Failure.h"
#include "text/Readable.h"

namespace linewright {

namespace {

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

std::vector<std::string> NamesOf(const Record& first, bool areStated) {
    std::vector<std::string> names;
    names.reserve(first.fields.size());
    for (const std::string_view field : first.fields) {
        names.push_back(areStated ? CsvValue(field) : std::to_string(names.size() + 1));
    }
    return names;
}

}  // namespace

std::optional<std::size_t> FindColumn(const std::vector<std::string>& names,
                                      std::string_view name) {
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end()) return std::nullopt;
    if (std::find(found + 1, names.end(), name) != names.end()) {
        throw Failure(fmt::format("the column \"{}\" stands twice in the header", Readable(name)));
    }
    return static_cast<std::size_t>(found - names.begin());
}

RowColumns::RowColumns(const Record& first, const RowOptions& wanted) : options(wanted) {
    if (first.fieldCount > kMaxColumns) {
        throw Failure(fmt::format("the header has {} columns; at most {} can be", first.fieldCount,
                                  kMaxColumns));
    }
    names = NamesOf(first, options.hasHeader);
    if (!options.type) {
        type = RequireColumn(names, options.typeColumn, "--type names one type for all rows");
    }
    data = RequireColumn(names, options.dataColumn, "--column names the one that holds the data");
    if (!options.isCheckWanted) check = FindColumn(names, "check");
    if (!options.ratio) ratio = FindColumn(names, "ratio");
    if (options.titleColumn) {
        title = RequireColumn(names, *options.titleColumn, "--title names the one of titles");
    }
    width = names.size();
    isPlain = type && !check && !ratio;
    plainCheck = options.isCheckWanted ? 1 : 0;
    plainRatio = options.ratio.value_or(2.0);
}

RowWish RowColumns::CloselyWishOf(const Record& row) {
    if (row.fieldCount != width) {
        throw Failure(fmt::format("the row has {} fields, the header {}", row.fieldCount, width));
    }
    RowWish wish;
    wish.type = type ? Trimmed(CsvValue(row.fields[*type], typeMemory)) : *options.type;
    wish.checkCharacter = plainCheck;
    if (check) wish.checkCharacter = CheckOf(CsvValue(row.fields[*check], dataMemory));
    wish.ratio = plainRatio;
    if (ratio) wish.ratio = RatioOf(CsvValue(row.fields[*ratio], dataMemory));
    wish.data = CsvValue(row.fields[data], dataMemory);
    return wish;
}

BarcodeWish RowColumns::BarcodeWishOf(const RowWish& wish) const {
    return {.type = std::string(wish.type),
            .data = std::string(wish.data),
            .checkCharacter = wish.checkCharacter,
            .ratio = wish.ratio,
            .isStrict = options.isStrict};
}

BarcodeWish RowColumns::BarcodeWishOf(const Record& row) {
    return BarcodeWishOf(WishOf(row));
}

std::string RowColumns::TitleOf(const Record& row) const {
    return title && *title < row.fields.size() ? CsvValue(row.fields[*title]) : "";
}

}  // namespace linewright
