#include <fmt/format.h>

#include <filesystem>

#include "cli/BatchFile.h"
#include "cli/DrawCommand.h"
#include "cli/DrawnBarcode.h"
#include "cli/Failure.h"
#include "cli/OutputFile.h"
#include "host/runtime/Paths.h"
#include "render/Sheet.h"
#include "text/Readable.h"
#include "types/BarcodeTypes.h"

namespace linewright {

namespace {

struct ProofCounts {
    std::size_t rows = 0;
    std::size_t refused = 0;
    std::size_t unreadable = 0;
    std::size_t withoutScanner = 0;

    std::string Summary() const {
        return fmt::format("{} rows: {} drawn ({} scan, {} do not, {} have no scanner), {} refused",
                           rows, rows - refused, rows - refused - unreadable - withoutScanner,
                           unreadable, withoutScanner, refused);
    }
};

std::string FontOf(const BarcodeDrawing& drawing, std::string_view typeName) {
    const BarcodeType* const type = FindTypeByPrefix(typeName);
    if (type->face == nullptr) return "text, for any face";
    return fmt::format("{}, {:.2f} pt", type->face->family, drawing.FontSize());
}

SheetEntry Refused(std::string title, const std::string& data, const std::string& message) {
    return {std::nullopt,
            std::move(title),
            {fmt::format("data     {}", Readable(data)), fmt::format("refused  {}", message)}};
}

SheetEntry EntryOf(const DrawnBarcode& drawn, const RowWish& wish, std::string title,
                   ProofCounts& counts) {
    const Verification verification = Verify(*drawn.drawing, drawn.meaning);
    if (verification.verdict == Verdict::kNoScanner) ++counts.withoutScanner;
    if (verification.IsBad()) ++counts.unreadable;
    SheetEntry entry{drawn.drawing, std::move(title), {}};
    entry.lines.push_back(fmt::format("data  {}", Readable(wish.data)));
    entry.lines.push_back(fmt::format("font  {}", FontOf(*drawn.drawing, drawn.outcome.typeName)));
    const std::string read = WhatWasRead(verification);
    entry.lines.push_back(
        fmt::format("read  {}{}", VerdictWords(verification), read.empty() ? "" : ": " + read));
    for (const std::string& warning : drawn.outcome.warnings) {
        entry.lines.push_back("note  " + warning);
    }
    return entry;
}

SheetEntry EntryOfRow(Service& service, const BatchFile& batch, const CsvRecord& row,
                      const BatchOptions& options, const DrawOptions& drawing,
                      ProofCounts& counts) {
    const std::string line = fmt::format("line {}", row.line);
    RowWish wish;
    try {
        wish = batch.Columns().WishOf(row);
    } catch (const Failure& failure) {
        ++counts.refused;
        return Refused(line, "", failure.what());
    }
    const DrawnBarcode drawn =
        DrawBarcode(service, wish.Request(), options.isStrict, drawing.drawing);
    if (!drawn.drawing) {
        ++counts.refused;
        return Refused(fmt::format("{}, {}", Readable(wish.type), line), wish.data,
                       drawn.outcome.message);
    }
    return EntryOf(drawn, wish,
                   fmt::format("{}, {}", FindTypeByPrefix(drawn.outcome.typeName)->shortName, line),
                   counts);
}

}  // namespace

ExitStatus RunProof(Service& service, const BatchFiles& files, const BatchOptions& options,
                    const DrawOptions& drawing, Console& console) {
    const std::string text = ReadInput(files.input, console.in);
    const BatchFile batch(text, files.input, options);
    ProofCounts counts;
    std::vector<SheetEntry> entries;
    std::vector<SheetEntry> refused;
    const std::vector<CsvRecord>& records = batch.File().records;
    for (std::size_t i = 1; i < records.size(); ++i) {
        if (records[i].IsBlank()) continue;
        ++counts.rows;
        SheetEntry entry = EntryOfRow(service, batch, records[i], options, drawing, counts);
        (entry.drawing ? entries : refused).push_back(std::move(entry));
    }
    // What was refused stands behind the barcodes.
    std::move(refused.begin(), refused.end(), std::back_inserter(entries));
    const std::string name = host::Utf8FromPath(host::PathFromUtf8(files.input).filename());
    OutputFile file(files.output);
    file.Stream() << SheetPdf(fmt::format("Linewright proof of {}", Readable(name)), entries);
    file.Keep();
    console.err << counts.Summary() << '\n';
    if (drawing.isVerified && counts.unreadable > 0) return kDoesNotScan;
    return counts.refused == 0 ? kDone : kRowsRefused;
}

}  // namespace linewright
