#include <fmt/format.h>

#include <filesystem>

#include "cli/BatchFile.h"
#include "cli/DrawCommand.h"
#include "cli/Failure.h"
#include "cli/OutputFile.h"
#include "cli/VerdictWords.h"
#include "host/runtime/Paths.h"
#include "render/Sheet.h"
#include "requests/DrawnBarcode.h"
#include "scanners/Verification.h"
#include "text/Readable.h"

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

std::string FontOf(const BarcodeDrawing& drawing, const BarcodeType& type) {
    if (type.face == nullptr) return "text, for any face";
    return fmt::format("{}, {:.2f} pt", type.face->family, drawing.FontSize());
}

SheetEntry Refused(std::string title, const std::string& data, const std::string& message) {
    return {std::nullopt,
            std::move(title),
            {fmt::format("data     {}", Readable(data)), fmt::format("refused  {}", message)}};
}

SheetEntry EntryOf(const DrawnBarcode& drawn, const BarcodeWish& wish, std::string title,
                   Language language, ProofCounts& counts) {
    const Verification verification = Verify(*drawn.drawing, drawn.outcome.meaning);
    if (verification.verdict == Verdict::kNoScanner) ++counts.withoutScanner;
    if (verification.IsBad()) ++counts.unreadable;
    SheetEntry entry{drawn.drawing, std::move(title), {}};
    entry.lines.push_back(fmt::format("data  {}", Readable(wish.data)));
    entry.lines.push_back(fmt::format("font  {}", FontOf(*drawn.drawing, *drawn.outcome.type)));
    const std::string read = verification.WhatWasRead();
    entry.lines.push_back(
        fmt::format("read  {}{}", VerdictWords(verification), read.empty() ? "" : ": " + read));
    for (const Warning& warning : drawn.outcome.Warnings()) {
        entry.lines.push_back("note  " + Sentence(warning, language));
    }
    return entry;
}

SheetEntry EntryOfRow(Service& service, const BatchFile& batch, const CsvRecord& row,
                      const DrawOptions& drawing, Language language, ProofCounts& counts) {
    const std::string line = fmt::format("line {}", row.line);
    BarcodeWish wish;
    try {
        wish = batch.Columns().WishOf(row);
    } catch (const Failure& failure) {
        ++counts.refused;
        return Refused(line, "", failure.what());
    }
    const DrawnBarcode drawn = DrawBarcode(service, wish, drawing.drawing);
    if (!drawn.drawing) {
        ++counts.refused;
        return Refused(fmt::format("{}, {}", Readable(wish.type), line), wish.data,
                       WhyRefused(drawn.outcome, language));
    }
    return EntryOf(drawn, wish, fmt::format("{}, {}", drawn.outcome.type->shortName, line),
                   language, counts);
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
        SheetEntry entry =
            EntryOfRow(service, batch, records[i], drawing, console.language, counts);
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
