#include "merge/ResultColumns.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "merge/Csv.h"
#include "merge/Failure.h"
#include "merge/RowColumns.h"
#include "text/Readable.h"

namespace linewright {

namespace {

constexpr std::array<std::string_view, kResultCount> kNames{
    "barcode", "status", "message", "warning", "font",   "size",
    "text",    "scan",   "read",    "line",    "reason",
};

std::string ChosenName(Result result, const ResultNames& names) {
    const auto chosen = names.chosen.find(result);
    if (chosen != names.chosen.end()) return chosen->second;
    return names.prefix + std::string(NameOf(result));
}

}  // namespace

std::string_view NameOf(Result result) {
    return kNames[static_cast<std::size_t>(result)];
}

std::optional<Result> ResultOf(std::string_view name) {
    const auto found = std::find(kNames.begin(), kNames.end(), name);
    if (found == kNames.end()) return std::nullopt;
    return static_cast<Result>(found - kNames.begin());
}

ResultColumns::ResultColumns(std::vector<Result> results,
                             const std::vector<std::string>& fileColumns, const ResultNames& names,
                             bool keepsInput, char separator)
    : kinds(std::move(results)),
      width(fileColumns.size()),
      isInputKept(keepsInput),
      delimiter(separator) {
    for (const Result result : kinds) {
        const std::string name = ChosenName(result, names);
        if (std::find(resultNames.begin(), resultNames.end(), name) != resultNames.end()) {
            throw Failure(
                fmt::format("two columns of results would be named \"{}\"", Readable(name)));
        }
        resultNames.push_back(name);
        const auto taken = isInputKept ? FindColumn(fileColumns, name) : std::nullopt;
        if (taken && !names.isReplacing) {
            throw Failure(fmt::format(
                "the file has a column \"{}\" already, and a result has that name; --prefix P and "
                "--columns {}=NAME give it another one, --replace writes over the column",
                Readable(name), NameOf(result)));
        }
        replaced.push_back(taken);
        isReplacing = isReplacing || taken;
    }
    bool isBehind = false;
    for (const Result result : kinds) {
        ShortText& text = isBehind ? plain.behind : plain.front;
        if (text.size + 2 > text.bytes.size()) break;  // more results than a plain row has
        if (&result != &kinds.front() || isInputKept) text.Add(delimiter);
        if (result == Result::kStatus) text.Add('0');
        isBehind = isBehind || result == Result::kBarcode;
    }
}

bool ResultColumns::IsReplaced(std::string_view column) const {
    for (std::size_t place = 0; place < kinds.size(); ++place) {
        if (replaced[place] && resultNames[place] == column) return true;
    }
    return false;
}

void ResultColumns::AppendField(BlockWriter& out, std::string_view value) const {
    if (!NeedsQuotes(value, delimiter)) return out.Append(value);
    out.Append(CsvField(value, delimiter));
}

/** The row's own fields, as many as the header has. */
void ResultColumns::AppendInput(BlockWriter& out, const Record& row) const {
    for (std::size_t column = 0; column < width; ++column) {
        if (column > 0) out.Append(delimiter);
        const auto result = std::find(replaced.begin(), replaced.end(), column);
        if (result != replaced.end()) {
            const Result kind = kinds[static_cast<std::size_t>(result - replaced.begin())];
            AppendField(out, values[static_cast<std::size_t>(kind)]);
        } else if (column < row.fields.size()) {
            out.Append(row.fields[column]);
        }
    }
}

void ResultColumns::Append(BlockWriter& out, const Record& row) const {
    const bool isWhole = row.fieldCount == width;
    if (isInputKept && isWhole && !isReplacing) {
        out.Append(row.text);
    } else if (isInputKept) {
        AppendInput(out, row);
    }
    bool isFirst = !isInputKept;
    for (std::size_t place = 0; place < kinds.size(); ++place) {
        if (replaced[place]) continue;
        if (!std::exchange(isFirst, false)) out.Append(delimiter);
        AppendField(out, values[static_cast<std::size_t>(kinds[place])]);
    }
    if (isInputKept && row.fieldCount > width) {
        const char* const surplus = row.fields[width].data();
        out.Append(delimiter);
        out.Append({surplus, static_cast<std::size_t>(row.text.end() - surplus)});
    }
    out.Append(row.ending);
}

void ResultColumns::AppendHeader(BlockWriter& out, const Record& header) {
    Clear();
    for (std::size_t place = 0; place < kinds.size(); ++place) {
        Set(kinds[place], resultNames[place]);
    }
    Append(out, header);
}

void ResultColumns::AppendPlain(BlockWriter& out, const Record& row,
                                std::string_view barcode) const {
    const std::string_view input = isInputKept ? row.text : std::string_view();
    out.AppendRow(input, barcode, plain, row.ending);
}

}  // namespace linewright
