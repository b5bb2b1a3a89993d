#include "library/Many.h"

#include <algorithm>
#include <limits>
#include <type_traits>

#include "library/Barcode.h"
#include "requests/PlainBarcodes.h"
#include "text/FontText.h"
#include "types/WrittenType.h"

namespace linewright {

namespace {

/** So many rows tell what room all of them need. */
constexpr std::size_t kSample = 1024;

[[noreturn]] void Refuse(const std::string& sentence) {
    throw CallFailure{LINEWRIGHT_BAD_ARGUMENT, sentence};
}

bool IsThere(const linewright_column& column) {
    return column.offsets != nullptr;
}

/** A column of texts as it was handed over, looked at before it is read. */
class Column {
  public:
    Column(const linewright_column& given, std::string name)
        : column(given), called(std::move(name)) {
        if (column.offset_bits != 32 && column.offset_bits != 64) {
            Refuse(called + ": offsets have 32 or 64 bits");
        }
    }

    std::string_view At(std::size_t row) const {
        const int64_t begin = Offset(row);
        const int64_t end = Offset(row + 1);
        if (begin < 0 || end < begin || static_cast<uint64_t>(end) > column.size) {
            Refuse(called + ": the offsets of row " + std::to_string(row) +
                   " go back or leave the buffer");
        }
        return {column.bytes + begin, static_cast<std::size_t>(end - begin)};
    }

  private:
    int64_t Offset(std::size_t place) const {
        return column.offset_bits == 32 ? static_cast<const int32_t*>(column.offsets)[place]
                                        : static_cast<const int64_t*>(column.offsets)[place];
    }

    const linewright_column& column;
    std::string called;
};

/** Answers rows, which mostly have the type of the row before. */
class RowEncoder {
  public:
    RowEncoder(Service& runService, const linewright_options& runOptions)
        : service(runService),
          options(runOptions),
          plain(runService),
          isWarned((runOptions.flags & (LINEWRIGHT_WARN | LINEWRIGHT_STRICT)) != 0),
          isText((runOptions.flags & LINEWRIGHT_FONT_BYTES) == 0) {
        wish.isUtf8 = request.isUtf8 = (options.flags & LINEWRIGHT_BYTES) == 0;
        wish.isStrict = (options.flags & LINEWRIGHT_STRICT) != 0;
    }

    void SetType(std::string_view written) {
        if (isTypeSet && written == wish.type) return;
        isTypeSet = true;
        wish.type = written;
        request.typeName = SentTypeName(wish.type, FindWrittenType(wish.type).type);
    }
    void SetCheck(uint8_t check) { wish.checkCharacter = request.checkCharacter = check; }
    void SetRatio(double ratio) { wish.ratio = request.ratio = ratio; }

    void Encode(std::string_view data, Results& results) {
        // As nearly all are: made, with nothing to be warned of.
        if (wish.isUtf8) {
            const auto made = plain.Make(wish.type, data, wish.checkCharacter, wish.ratio);
            if (made) return AddMade(made->fontString, LINEWRIGHT_MADE, results);
        }
        if (isWarned) return EncodeWithWarnings(data, results);
        if (request.typeName.empty()) return results.Add(0, LINEWRIGHT_UNKNOWN_TYPE);
        request.data = data;
        service.Encode(request, answer);
        if (answer.status != 0) return results.Add(answer.status, LINEWRIGHT_BAD_DATA);
        AddMade(answer.bytes, LINEWRIGHT_MADE, results);
    }

  private:
    void EncodeWithWarnings(std::string_view data, Results& results) {
        wish.data = data;
        const BarcodeOutcome outcome = MakeBarcode(service, wish);
        const auto reason = static_cast<uint8_t>(ReasonOf(outcome));
        if (!outcome.IsMade()) return results.Add(outcome.status.value_or(0), reason);
        AddMade(outcome.bytes, reason, results);
    }

    void AddMade(std::string_view bytes, uint8_t reason, Results& results) const {
        if (isText) {
            AppendFontText(results.Texts(), bytes);
        } else {
            results.Texts() += bytes;
        }
        results.Add(0, reason);
    }

    Service& service;
    const linewright_options& options;
    PlainBarcodes plain;
    bool isWarned;
    bool isText;
    bool isTypeSet = false;
    BarcodeWish wish;
    EncodeRequest request;
    EncodeAnswer answer;
};

}  // namespace

Results::Results(std::size_t count) {
    offsets.reserve(count + 1);
    statuses.reserve(count);
    reasons.reserve(count);
    offsets.push_back(0);
}

void Results::Add(int32_t status, uint8_t reason) {
    offsets.push_back(static_cast<int64_t>(texts.size()));
    statuses.push_back(status);
    reasons.push_back(reason);
}

void Results::Describe() {
    fields.count = statuses.size();
    fields.statuses = statuses.data();
    fields.reasons = reasons.data();
    fields.texts = {texts.data(), texts.size(), offsets.data(), 64};
    if (texts.size() > std::numeric_limits<int32_t>::max()) return;
    shortOffsets.assign(offsets.begin(), offsets.end());
    fields.texts.offsets = shortOffsets.data();
    fields.texts.offset_bits = 32;
}

const linewright_results* Results::HandOut(std::unique_ptr<Results> results) {
    static_assert(std::is_standard_layout_v<Results>);
    results->Describe();
    return &results.release()->fields;
}

void Results::TakeBack(const linewright_results* results) {
    delete reinterpret_cast<const Results*>(results);
}

std::unique_ptr<Results> EncodeMany(Opened& opened, const linewright_rows& rows,
                                    const linewright_options& options) {
    auto results = std::make_unique<Results>(rows.count);
    if (rows.count == 0) return results;
    if (!IsThere(rows.data)) Refuse("data: there is no column");
    const Column data(rows.data, "data");
    const Column types(rows.types, "types");
    RowEncoder encoder(opened.Requests(), options);
    for (std::size_t row = 0; row < rows.count; ++row) {
        if (row == kSample) results->Texts().reserve(results->Texts().size() / row * rows.count);
        encoder.SetType(IsThere(rows.types) ? types.At(row) : ViewOf(rows.type));
        encoder.SetCheck(rows.checks != nullptr ? rows.checks[row]
                                                : static_cast<uint8_t>(options.check));
        encoder.SetRatio(rows.ratios != nullptr ? rows.ratios[row] : options.ratio);
        encoder.Encode(data.At(row), *results);
    }
    return results;
}

}  // namespace linewright
