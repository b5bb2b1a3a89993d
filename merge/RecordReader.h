#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "merge/ByteSource.h"
#include "merge/SixteenBytes.h"

namespace linewright {

/** As many as a spreadsheet has. */
inline constexpr std::size_t kMaxColumns = 16384;

/** A row of a file, as views into what was read, valid until the next one is. */
struct Record {
    /** All of it but its ending. */
    std::string_view text;
    /** The fields as they stand in the file, quotes included; of more than kMaxColumns + 1 the
     *  first ones. */
    std::span<const std::string_view> fields{};
    std::size_t fieldCount = 0;
    /** "\n", "\r\n", "\r", or "" for a last line without one. */
    std::string_view ending;
    /** The line in the file on which the record begins, from 1. */
    std::uint64_t line = 1;
    bool isAscii = true;

    /** A line without any character. It is no row, and is passed on as it is. */
    bool IsBlank() const { return text.empty(); }
};

/**
 * Takes record after record from a text, which is read block by block into one piece of memory that
 * grows only for a record which is longer. CSV after RFC 4180, with any delimiter and any line
 * ending (LF, CRLF, CR). A quote inside a field that does not begin with one stands for itself.
 */
class RecordReader {
  public:
    /** The source is borrowed. `maxRecord` is in bytes. */
    RecordReader(ByteSource& borrowed, std::size_t maxRecord);

    /** The text that was read and is not taken yet. */
    std::string_view Ahead() const { return {next, static_cast<std::size_t>(end - next)}; }
    /** Reads on; false at the end. Throws Failure where a record would be too long. */
    bool ReadAhead();
    void Skip(std::size_t bytes) {
        next += bytes;
        position += bytes;
    }

    void SetDelimiter(char separator);
    /** The line on which the next record begins, from 1; for who begins inside a file, or goes on
     *  with a source that had ended. */
    void SetLine(std::uint64_t line) {
        nextLine = line;
        isAtEnd = false;
    }

    /** False at the end. Throws Failure, which names the line, for a quoted field that is never
     *  closed, a record above the limit, and bytes that are not UTF-8. */
    bool Next();
    const Record& Current() const { return record; }
    /** Where the next record begins, in bytes of the text. */
    std::uint64_t Position() const { return position; }

  private:
    struct Free {
        void operator()(char* allocated) const;
    };

    void MakeRoom();
    /** Goes through what was read; false where the record does not end in it. */
    bool Scan();
    /** Keeps what Scan knows. */
    void Suspend(const char* at, const char* fieldBegin, std::size_t fieldCount, bool isInside,
                 std::uint32_t aboveAscii);
    void Finish(const char* textEnd, const char* recordEnd);
    void RequireLength(std::size_t length) const {
        if (length > maxLength) FailForLength();
    }
    [[noreturn]] void FailForLength() const;
    void RequireUtf8() const;

    ByteSource& source;
    std::size_t maxLength;
    char delimiter = ',';
    FourBytes marks;
    /** Memory of `capacity` bytes and sixteen more. */
    std::unique_ptr<char, Free> memory;
    std::size_t capacity;
    const char* next;
    const char* end;
    bool isAtEnd = false;
    std::uint64_t position = 0;
    std::uint64_t nextLine = 1;

    // Of the record that is being read: how far it was gone through, where its last field begins,
    // and the quote that closed a part of it last.
    const char* scanned = nullptr;
    const char* field = nullptr;
    const char* closingQuote = nullptr;
    bool isQuoted = false;
    std::uint64_t linesInside = 0;

    /** Room for the fields of a record. */
    std::vector<std::string_view> fields;
    Record record;
};

}  // namespace linewright
