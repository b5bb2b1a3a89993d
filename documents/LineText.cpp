#include "documents/LineText.h"

#include <algorithm>

#include "documents/Layout.h"
#include "text/Readable.h"

namespace linewright {

namespace {

/** The place and length of the next name in braces, with them. */
struct Placeholder {
    std::size_t begin;
    std::size_t length;

    std::string_view Name(std::string_view text) const {
        return text.substr(begin + 1, length - 2);
    }
};

std::optional<Placeholder> NextPlaceholder(std::string_view text, std::size_t from) {
    std::optional<std::size_t> begin;
    for (std::size_t place = from; place < text.size(); ++place) {
        if (text[place] == '{') begin = place;
        if (text[place] == '}' && begin) return Placeholder{*begin, place + 1 - *begin};
    }
    return std::nullopt;
}

/** A part with its columns filled in; none where it has columns and all are empty. */
std::optional<std::string> FilledPart(std::string_view part, const ColumnText& textOf) {
    std::string filled;
    std::size_t done = 0;
    bool hasColumns = false;
    bool saysAnything = false;
    while (const auto place = NextPlaceholder(part, done)) {
        const auto said = textOf(place->Name(part));
        filled += part.substr(done, place->begin - done);
        filled += said.value_or(part.substr(place->begin, place->length));
        hasColumns = hasColumns || said;
        saysAnything = saysAnything || (said && !said->empty());
        done = place->begin + place->length;
    }
    if (hasColumns && !saysAnything) return std::nullopt;
    return filled.append(part.substr(done));
}

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

}  // namespace

std::string ShownText(std::string_view text) {
    std::string shown = Readable(text);
    for (const std::string_view none : {"\xEF\xBF\xBE", "\xEF\xBF\xBF"}) {
        for (std::size_t at = shown.find(none); at != std::string::npos;
             at = shown.find(none, at)) {
            shown.replace(at, none.size(), kReplacement);
        }
    }
    return shown;
}

std::string FilledLine(std::string_view text, const ColumnText& textOf) {
    std::string line;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find(kBetweenColumns, begin), text.size());
        if (const auto part = FilledPart(text.substr(begin, end - begin), textOf)) {
            if (!line.empty()) line += kBetweenColumns;
            line += *part;
        }
        begin = end + kBetweenColumns.size();
    }
    return line;
}

std::optional<std::string> UnknownColumn(std::string_view text,
                                         const std::vector<std::string>& columns) {
    std::size_t done = 0;
    while (const auto place = NextPlaceholder(text, done)) {
        const std::string_view name = place->Name(text);
        if (std::find(columns.begin(), columns.end(), name) == columns.end()) {
            return std::string(name);
        }
        done = place->begin + place->length;
    }
    return std::nullopt;
}

std::vector<std::string> ShownLines(std::string_view text) {
    std::vector<std::string> lines;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find_first_of("\r\n", begin), text.size());
        std::string line(text.substr(begin, end - begin));
        std::replace(line.begin(), line.end(), '\t', ' ');
        lines.push_back(ShownText(line));
        begin = end + (text.substr(end).starts_with("\r\n") ? 2 : 1);
    }
    while (!lines.empty() && lines.back().find_first_not_of(' ') == std::string::npos) {
        lines.pop_back();
    }
    return lines;
}

}  // namespace linewright
