#include "merge/RowFile.h"

#include <fmt/format.h>

#include <algorithm>

#include "merge/Csv.h"
#include "merge/DecodingSource.h"
#include "merge/OutputFailure.h"
#include "text/Readable.h"

namespace linewright {

namespace {

/** A source whose first bytes can be looked at before they are read: those of its first line. */
class HeadSource : public ByteSource {
  public:
    explicit HeadSource(ByteSource& borrowed) : source(borrowed), head(kEncodingHead, '\0') {
        std::size_t count = 0;
        while (count < head.size() && !HasLine({head.data(), count})) {
            const std::size_t read = source.Read(head.data() + count, head.size() - count);
            if (read == 0) break;
            count += read;
        }
        head.resize(count);
    }

    std::string_view Head() const { return head; }

    std::size_t Read(char* block, std::size_t capacity) override {
        if (taken == head.size()) return source.Read(block, capacity);
        const std::size_t count = head.copy(block, capacity, taken);
        taken += count;
        return count;
    }

  private:
    /** Of UTF-16 both bytes of its end. */
    static bool HasLine(std::string_view text) {
        const bool isHalf = text.size() % 2 != 0 && text.find('\0') != std::string_view::npos;
        return !isHalf && text.find_first_of("\r\n") != std::string_view::npos;
    }

    ByteSource& source;
    std::string head;
    std::size_t taken = 0;
};

}  // namespace

void RowFile::FailNamed(const Failure& failure) const {
    if (dynamic_cast<const OutputFailure*>(&failure) != nullptr) throw;
    throw Failure(fmt::format("{}: {}", Readable(name), failure.what()));
}

RowFile::RowFile(const std::string& fileName, std::istream& standardInput,
                 const RowOptions& rowOptions, BeforeWaiting beforeWaiting)
    : name(fileName), options(rowOptions) {
    if (name != "-") file = OpenInput(name);
    Named([&] {
        Open(file ? *file : standardInput, std::move(beforeWaiting));
        TakeByteOrderMark();
        FindDelimiter();
        ReadFirst();
    });
}

void RowFile::Open(std::istream& stream, BeforeWaiting beforeWaiting) {
    length = LengthOf(stream);
    bytes = std::make_unique<StreamSource>(stream, std::move(beforeWaiting));
    ByteSource* source = bytes.get();
    if (options.encoding) {
        encoding = *options.encoding;
    } else {
        auto looked = std::make_unique<HeadSource>(*bytes);
        encoding = DetectEncoding(looked->Head());
        head = std::move(looked);
        source = head.get();
    }
    if (encoding != Encoding::kUtf8) {
        text = std::make_unique<DecodingSource>(*source, encoding);
        source = text.get();
    }
    reader = std::make_unique<RecordReader>(*source, options.maxRecord);
}

void RowFile::TakeByteOrderMark() {
    while (kByteOrderMark.starts_with(reader->Ahead())) {
        if (reader->Ahead() == kByteOrderMark || !reader->ReadAhead()) break;
    }
    hasByteOrderMark = reader->Ahead().starts_with(kByteOrderMark);
    if (hasByteOrderMark) reader->Skip(kByteOrderMark.size());
}

void RowFile::FindDelimiter() {
    DelimiterFinder finder;
    std::size_t seen = 0;
    while (!options.delimiter && !finder.Take(reader->Ahead().substr(seen))) {
        seen = reader->Ahead().size();
        if (!reader->ReadAhead()) break;
    }
    delimiter = options.delimiter.value_or(finder.Found());
    reader->SetDelimiter(delimiter);
}

void RowFile::ReadFirst() {
    const bool isAny = reader->Next();
    const Record& first = reader->Current();
    if (!isAny || (options.hasHeader && first.IsBlank())) {
        throw Failure(options.hasHeader ? "there is no header row" : "there is no row");
    }
    columns.emplace(first, options);
    isFirstPending = !options.hasHeader;
    if (!options.hasHeader) return;
    header = first;
    headerText = first.text;
    headerEnding = first.ending;
    header.text = headerText;
    header.ending = headerEnding;
    headerFields.reserve(first.fields.size());
    for (const std::string_view field : first.fields) {
        headerFields.emplace_back(headerText.data() + (field.data() - first.text.data()),
                                  field.size());
    }
    header.fields = headerFields;
}

bool RowFile::Next() {
    if (isFirstPending) {
        isFirstPending = false;
        return true;
    }
    return Named([this] { return reader->Next(); });
}

}  // namespace linewright
