#pragma once

#include <memory>
#include <string>

#include "merge/ByteSource.h"
#include "merge/Failure.h"
#include "merge/RowColumns.h"

namespace linewright {

/** A file of rows, read from its beginning to its end. What is wrong with it is thrown as a Failure
 *  that begins with its name. */
class RowFile {
  public:
    /** Opens a file by its UTF-8 name, or takes standard input for "-", finds encoding and
     *  delimiter and reads the header. Options and standard input are borrowed. */
    RowFile(const std::string& name, std::istream& standardInput, const RowOptions& options,
            BeforeWaiting beforeWaiting = {});

    Encoding FileEncoding() const { return encoding; }
    bool HasByteOrderMark() const { return hasByteOrderMark; }
    char Delimiter() const { return delimiter; }
    RowColumns& Columns() { return *columns; }
    /** The row that names the columns; nullptr where none does. */
    const Record* Header() const { return options.hasHeader ? &header : nullptr; }

    /** The next row, blank lines too; false at the end. */
    bool Next();
    const Record& Row() const { return reader->Current(); }
    /** Lets go of the file, from which nothing is read any more: one that is open cannot be
     * replaced everywhere. */
    void Close() { file.reset(); }

    /** Runs `work`, and puts the file's name in front of a Failure that it throws. */
    template <class Work>
    auto Named(Work work) const try {
        return work();
    } catch (const Failure& failure) {
        FailNamed(failure);
    }

    /** How many bytes were read of how many; none where a pipe does not say. */
    std::uint64_t Position() const { return bytes->Position(); }
    std::optional<std::uint64_t> Length() const { return length; }

  private:
    [[noreturn]] void FailNamed(const Failure& failure) const;
    void Open(std::istream& stream, BeforeWaiting beforeWaiting);
    void TakeByteOrderMark();
    void FindDelimiter();
    void ReadFirst();

    std::string name;
    const RowOptions& options;
    Encoding encoding = Encoding::kUtf8;
    bool hasByteOrderMark = false;
    char delimiter = ',';
    std::unique_ptr<std::istream> file;
    std::optional<std::uint64_t> length;
    std::unique_ptr<StreamSource> bytes;
    std::unique_ptr<ByteSource> head;
    std::unique_ptr<ByteSource> text;
    std::unique_ptr<RecordReader> reader;
    std::optional<RowColumns> columns;
    /** The header, and what its views look into. */
    Record header;
    std::vector<std::string_view> headerFields;
    std::string headerText;
    std::string headerEnding;
    bool isFirstPending = false;
};

}  // namespace linewright
