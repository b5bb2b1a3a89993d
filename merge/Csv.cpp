#include "merge/Csv.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

#include "merge/Failure.h"

namespace linewright {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kLineEnds = "\r\n";

std::string_view ByteOrderMarkOf(std::string_view text) {
    return text.starts_with(kByteOrderMark) ? text.substr(0, kByteOrderMark.size()) : "";
}

/** The position behind the quote that closes a field, npos when none does. */
std::size_t EndOfQuoted(std::string_view text, std::size_t opening) {
    std::size_t position = opening;
    do {
        position = text.find('"', position + 1);
        if (position == std::string_view::npos) return position;
        ++position;  // a pair of quotes is one that stands for itself
    } while (position < text.size() && text[position] == '"');
    return position;
}

std::string_view EndingAt(std::string_view text, std::size_t position) {
    if (text.substr(position).starts_with("\r\n")) return text.substr(position, 2);
    return text.substr(position, 1);
}

std::size_t CountLines(std::string_view text) {
    std::size_t lines = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isPair = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
        if (kLineEnds.find(text[i]) != std::string_view::npos && !isPair) ++lines;
    }
    return lines;
}

/** Reads record after record from a text. */
class CsvReader {
  public:
    CsvReader(std::string_view wholeText, char separator) : text(wholeText), delimiter(separator) {}

    bool IsAtEnd() const { return position == text.size(); }

    CsvRecord Next() {
        CsvRecord record;
        record.line = line;
        const std::size_t start = position;
        record.fields.push_back(NextField());
        while (!IsAtEnd() && text[position] == delimiter) {
            ++position;
            record.fields.push_back(NextField());
        }
        record.ending = EndingAt(text, position);
        position += record.ending.size();
        line += CountLines(text.substr(start, position - start));
        return record;
    }

  private:
    std::string_view NextField() {
        const std::size_t start = position;
        if (!IsAtEnd() && text[position] == '"') {
            position = EndOfQuoted(text, position);
            if (position == std::string_view::npos) {
                throw Failure(
                    fmt::format("a quoted field of the row in line {} is never closed", line));
            }
        }
        const std::array<char, 3> ends{delimiter, '\r', '\n'};
        position = std::min(text.find_first_of({ends.data(), ends.size()}, position), text.size());
        return text.substr(start, position - start);
    }

    std::string_view text;
    char delimiter;
    std::size_t position = 0;
    std::size_t line = 1;
};

}  // namespace

char DetectCsvDelimiter(std::string_view text) {
    constexpr std::string_view kCandidates = ",;\t";
    std::array<std::size_t, kCandidates.size()> counts{};
    bool isQuoted = false;
    for (const char character : text) {
        if (character == '"') isQuoted = !isQuoted;
        if (isQuoted) continue;
        if (kLineEnds.find(character) != std::string_view::npos) break;
        const std::size_t candidate = kCandidates.find(character);
        if (candidate != std::string_view::npos) ++counts[candidate];
    }
    const auto most = std::max_element(counts.begin(), counts.end());
    return kCandidates[static_cast<std::size_t>(most - counts.begin())];
}

CsvFile ReadCsv(std::string_view text, char delimiter) {
    CsvFile file{ByteOrderMarkOf(text), {}};
    CsvReader reader(text.substr(file.byteOrderMark.size()), delimiter);
    while (!reader.IsAtEnd()) file.records.push_back(reader.Next());
    return file;
}

std::string CsvValue(std::string_view field) {
    if (!field.starts_with('"')) return std::string(field);
    const std::size_t end = EndOfQuoted(field, 0);
    const std::string_view quoted = field.substr(1, end - 2);
    std::string value;
    for (std::size_t i = 0; i < quoted.size(); ++i) {
        value += quoted[i];
        if (quoted[i] == '"') ++i;
    }
    return value + std::string(field.substr(end));
}

std::string CsvField(std::string_view value, char delimiter) {
    const bool needsQuotes = value.starts_with(' ') || value.ends_with(' ') ||
                             value.find_first_of("\"\r\n") != std::string_view::npos ||
                             value.find(delimiter) != std::string_view::npos;
    if (!needsQuotes) return std::string(value);
    std::string field = "\"";
    for (const char character : value) {
        if (character == '"') field += '"';
        field += character;
    }
    return field + '"';
}

}  // namespace linewright
