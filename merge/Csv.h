#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace linewright {

// CSV after RFC 4180, with any delimiter and any line ending (LF, CRLF, CR). Fields are kept as
// they stand in the file, quotes included, so that what nobody changes is written back byte for
// byte. A quote inside a field that does not begin with one stands for itself.

struct CsvRecord {
    /** The fields as they stand in the file; pieces of the text that was read. */
    std::vector<std::string_view> fields;
    /** "\n", "\r\n", "\r", or "" for a last line without one. */
    std::string_view ending;
    /** The line in the file on which the record begins, from 1. */
    std::size_t line = 0;

    /** A line without any character. It is no row, and is passed on as it is. */
    bool IsBlank() const { return fields.size() == 1 && fields[0].empty(); }
};

struct CsvFile {
    /** The byte-order mark or "". */
    std::string_view byteOrderMark;
    std::vector<CsvRecord> records;
};

/** The delimiter that stands most often, outside of quotes, in the first record: comma, semicolon
 *  or tab; a comma when there is none. */
char DetectCsvDelimiter(std::string_view text);

/** Takes a text apart, which must outlive the result. Throws Failure for a quoted field that is
 *  never closed. */
CsvFile ReadCsv(std::string_view text, char delimiter);

/** What a field of a file says, without its quotes. */
std::string CsvValue(std::string_view field);

/** A text as a field of a file, in quotes where it needs them. */
std::string CsvField(std::string_view value, char delimiter);

}  // namespace linewright
