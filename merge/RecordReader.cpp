#include "merge/RecordReader.h"

#include <fmt/format.h>

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <cstring>
#include <new>

#include "merge/Csv.h"
#include "merge/Failure.h"
#include "text/Utf8.h"

namespace linewright {

namespace {

constexpr std::size_t kBlock = std::size_t{1} << 18;

FourBytes MarksOf(char delimiter) {
    return FourBytes({delimiter, '\n', '\r', '"'});
}

std::uint32_t BitsBelow(std::size_t place) {
    return (std::uint32_t{1} << place) - 1;
}

}  // namespace

void RecordReader::Free::operator()(char* allocated) const {
    std::free(allocated);
}

RecordReader::RecordReader(ByteSource& borrowed, std::size_t maxRecord)
    : source(borrowed), maxLength(maxRecord), marks(MarksOf(delimiter)), capacity(kBlock) {
    memory.reset(static_cast<char*>(std::calloc(capacity + kSixteen, 1)));
    if (!memory) throw std::bad_alloc();
    next = end = memory.get();
    fields.resize(kMaxColumns + 1);
}

void RecordReader::SetDelimiter(char separator) {
    delimiter = separator;
    marks = MarksOf(delimiter);
}

/** Brings what is not taken to the front of the memory and, where it fills it, makes that larger.
 *  The system moves large pieces without copying. */
void RecordReader::MakeRoom() {
    const char* const from = next;
    const auto length = static_cast<std::size_t>(end - next);
    std::memmove(memory.get(), next, length);
    if (length == capacity) {
        capacity = std::max(std::min(2 * capacity, maxLength + kBlock), capacity + kBlock);
        char* const larger = static_cast<char*>(std::realloc(memory.get(), capacity + kSixteen));
        if (!larger) throw std::bad_alloc();
        static_cast<void>(memory.release());
        memory.reset(larger);
    }
    next = memory.get();
    end = next + length;
    const auto moved = [&](const char* place) {
        return place == nullptr ? place : next + (place - from);
    };
    scanned = moved(scanned);
    field = moved(field);
    closingQuote = moved(closingQuote);
    for (std::size_t i = 0; i < std::min(record.fieldCount, fields.size()); ++i) {
        fields[i] = {moved(fields[i].data()), fields[i].size()};
    }
}

void RecordReader::FailForLength() const {
    throw Failure(fmt::format("line {}: the row is longer than the {} bytes of --max-record",
                              nextLine, maxLength));
}

bool RecordReader::ReadAhead() {
    if (isAtEnd) return false;
    RequireLength(Ahead().size());
    MakeRoom();
    const std::size_t used = Ahead().size();
    const std::size_t count = source.Read(memory.get() + used, capacity - used);
    end += count;
    isAtEnd = count == 0;
    return !isAtEnd;
}

bool RecordReader::Next() {
    record.fieldCount = 0;
    record.line = nextLine;
    record.isAscii = true;
    scanned = field = next;
    closingQuote = nullptr;
    isQuoted = false;
    linesInside = 0;
    while (!Scan()) {
        if (ReadAhead()) continue;
        if (next == end) return false;
        if (Scan()) return true;
        if (isQuoted) {
            throw Failure(
                fmt::format("a quoted field of the row in line {} is never closed", record.line));
        }
        const std::size_t count = record.fieldCount++;
        if (count < fields.size()) {
            fields[count] = {field, static_cast<std::size_t>(end - field)};
        }
        Finish(end, end);
        return true;
    }
    return true;
}

inline void RecordReader::Suspend(const char* at, const char* fieldBegin, std::size_t fieldCount,
                                  bool isInside, std::uint32_t aboveAscii) {
    scanned = at;
    field = fieldBegin;
    record.fieldCount = fieldCount;
    isQuoted = isInside;
    record.isAscii = record.isAscii && aboveAscii == 0;
}

bool RecordReader::Scan() {
    // What the loop changes stands in variables, which the compiler keeps in registers.
    const char* at = scanned;
    const char* fieldBegin = field;
    std::size_t count = record.fieldCount;
    bool isInside = isQuoted;
    std::uint32_t aboveAscii = 0;
    std::string_view* const slots = fields.data();
    const auto addField = [&](const char* mark) {
        if (count <= kMaxColumns) {
            slots[count] = {fieldBegin, static_cast<std::size_t>(mark - fieldBegin)};
        }
        ++count;
        fieldBegin = mark + 1;
    };
    for (; at < end; at += kSixteen) {
        ByteMasks masks = marks.LookAt(at);
        const auto rest = static_cast<std::size_t>(end - at);
        if (rest < kSixteen) {
            masks.found &= BitsBelow(rest);
            masks.aboveAscii &= BitsBelow(rest);
        }
        for (; masks.found != 0; masks.found &= masks.found - 1) {
            const auto place = static_cast<std::size_t>(std::countr_zero(masks.found));
            const char* const mark = at + place;
            if (isInside) {
                if (*mark == '"') {
                    isInside = false;
                    closingQuote = mark;
                } else if (*mark == '\r' || (*mark == '\n' && mark[-1] != '\r')) {
                    ++linesInside;
                }
            } else if (*mark == delimiter) {
                addField(mark);
            } else if (*mark == '"') {
                // One behind a closing quote takes back that it closed.
                isInside = mark == fieldBegin || mark - 1 == closingQuote;
            } else if (*mark == '\r' && mark + 1 == end && !isAtEnd) {
                // Nobody knows yet whether a line feed follows.
                aboveAscii |= masks.aboveAscii & BitsBelow(place);
                Suspend(mark, fieldBegin, count, isInside, aboveAscii);
                return false;
            } else {
                const bool isPair = *mark == '\r' && mark + 1 < end && mark[1] == '\n';
                addField(mark);
                aboveAscii |= masks.aboveAscii & BitsBelow(place);
                Suspend(mark, fieldBegin, count, isInside, aboveAscii);
                Finish(mark, mark + (isPair ? 2 : 1));
                return true;
            }
        }
        aboveAscii |= masks.aboveAscii;
    }
    Suspend(end, fieldBegin, count, isInside, aboveAscii);
    return false;
}

void RecordReader::Finish(const char* textEnd, const char* recordEnd) {
    RequireLength(static_cast<std::size_t>(textEnd - next));
    record.text = {next, static_cast<std::size_t>(textEnd - next)};
    record.fields = {fields.data(), std::min(record.fieldCount, fields.size())};
    record.ending = {textEnd, static_cast<std::size_t>(recordEnd - textEnd)};
    nextLine += linesInside + (record.ending.empty() ? 0 : 1);
    position += static_cast<std::uint64_t>(recordEnd - next);
    next = recordEnd;
    if (!record.isAscii) RequireUtf8();
}

void RecordReader::RequireUtf8() const {
    const auto invalid = FirstInvalidUtf8(record.text);
    if (!invalid) return;
    const std::string_view before = record.text.substr(0, *invalid);
    const std::size_t lineStart = before.find_last_of("\r\n") + 1;
    throw Failure(fmt::format(
        "line {}: byte {}, 0x{:02X}, is not UTF-8; --encoding says what the file is in, such as "
        "--encoding windows-1252",
        record.line + CountLineEnds(before), *invalid - lineStart + 1,
        static_cast<unsigned char>(record.text[*invalid])));
}

}  // namespace linewright
