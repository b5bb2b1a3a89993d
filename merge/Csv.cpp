#include "merge/Csv.h"

#include <algorithm>

namespace linewright {

namespace {

constexpr std::string_view kCandidates = ",;\t";
constexpr std::string_view kLineEnds = "\r\n";

/** The position behind the quote that closes a field which begins with one. */
std::size_t EndOfQuoted(std::string_view field) {
    std::size_t position = 0;
    do {
        position = field.find('"', position + 1);
        if (position == std::string_view::npos) return field.size();
        ++position;  // a pair of quotes is one that stands for itself
    } while (position < field.size() && field[position] == '"');
    return position;
}

}  // namespace

bool DelimiterFinder::Take(std::string_view text) {
    for (const char character : text) {
        if (character == '"') isQuoted = !isQuoted;
        if (isQuoted) continue;
        if (kLineEnds.find(character) != std::string_view::npos) return true;
        const std::size_t candidate = kCandidates.find(character);
        if (candidate != std::string_view::npos) ++counts[candidate];
    }
    return false;
}

char DelimiterFinder::Found() const {
    const auto most = std::max_element(counts.begin(), counts.end());
    return kCandidates[static_cast<std::size_t>(most - counts.begin())];
}

std::uint64_t CountLineEnds(std::string_view text) {
    std::uint64_t lines = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isPair = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
        if (kLineEnds.find(text[i]) != std::string_view::npos && !isPair) ++lines;
    }
    return lines;
}

std::string_view UnquotedValue(std::string_view field, std::string& memory) {
    if (field.find('"', 1) == field.size() - 1) return field.substr(1, field.size() - 2);
    const std::size_t end = EndOfQuoted(field);
    memory.clear();
    for (std::size_t i = 1; i + 1 < end; ++i) {
        memory += field[i];
        if (field[i] == '"') ++i;
    }
    return memory.append(field.substr(end));
}

std::string CsvValue(std::string_view field) {
    std::string memory;
    return std::string(CsvValue(field, memory));
}

bool NeedsQuotes(std::string_view value, char delimiter) {
    return value.starts_with(' ') || value.ends_with(' ') ||
           std::any_of(value.begin(), value.end(), [delimiter](char character) {
               return character == delimiter || character == '"' || character == '\r' ||
                      character == '\n';
           });
}

std::string CsvField(std::string_view value, char delimiter) {
    if (!NeedsQuotes(value, delimiter)) return std::string(value);
    std::string field = "\"";
    for (const char character : value) {
        if (character == '"') field += '"';
        field += character;
    }
    return field + '"';
}

}  // namespace linewright
