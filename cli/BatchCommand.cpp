#include "cli/BatchCommand.h"

#include <fmt/format.h>

#include <functional>

#include "cli/DrawingModule.h"
#include "cli/Progress.h"
#include "merge/BatchFile.h"
#include "merge/Failure.h"
#include "merge/OutputFile.h"
#include "text/FontText.h"

namespace linewright {

namespace {

std::string Times(std::size_t count, std::string_view what) {
    return fmt::format("{} {}{}", count, what, count == 1 ? "" : "s");
}

struct Counts {
    std::size_t rows = 0;
    std::size_t refused = 0;
    std::size_t warned = 0;
    UpcAColumn upcANumbers{};

    std::string Summary() const {
        return fmt::format("{}: {} encoded ({} with warnings), {} refused", Times(rows, "row"),
                           rows - refused, warned, refused);
    }
};

/** What makes a row's barcode. */
using MakeRow = std::function<ScannedBarcode(const BarcodeWish&)>;

MakeRow RowMaker(Service& service, const BatchOptions& options) {
    if (options.isVerified) return OpenDrawingModule().scanner(service, options.fonts);
    return [&service](const BarcodeWish& wish) {
        return ScannedBarcode{MakeBarcode(service, wish), "", ""};
    };
}

RowResult ResultOf(const MakeRow& make, const BarcodeWish& wish, Language language,
                   Counts& counts) {
    const ScannedBarcode made = make(wish);
    if (!wish.isArticleNumber) counts.upcANumbers.Take(made.outcome.type, wish.data);
    if (!made.outcome.IsMade()) {
        ++counts.refused;
    } else if (!made.outcome.Warnings().empty()) {
        ++counts.warned;
    }
    return {
        .barcode = FontText(made.outcome.bytes),
        .status = made.outcome.status ? std::to_string(*made.outcome.status) : "",
        .message = WhyRefused(made.outcome, language),
        .warning = JoinedWarnings(made.outcome, language),
        .scan = made.scan,
        .read = made.read,
    };
}

RowResult ResultOfRow(const MakeRow& make, const BatchFile& batch, const CsvRecord& row,
                      Language language, Counts& counts) {
    BarcodeWish wish;
    try {
        wish = batch.Columns().WishOf(row);
    } catch (const Failure& failure) {
        ++counts.refused;
        RowResult result;
        result.message = failure.what();
        return result;
    }
    return ResultOf(make, wish, language, counts);
}

Counts Run(Service& service, const BatchFile& batch, const BatchOptions& options, std::ostream& out,
           Console& console) {
    Counts counts;
    const CsvFile& file = batch.File();
    Progress progress(console, file.records.size());
    const MakeRow make = RowMaker(service, options);
    out << file.byteOrderMark << batch.Columns().HeaderLine(file.records.front());
    for (std::size_t i = 1; i < file.records.size(); ++i) {
        const CsvRecord& row = file.records[i];
        if (row.IsBlank()) {
            out << row.ending;
            continue;
        }
        ++counts.rows;
        out << batch.Columns().RowLine(row,
                                       ResultOfRow(make, batch, row, console.language, counts));
        progress.Show(i, counts);
    }
    return counts;
}

}  // namespace

ExitStatus RunBatch(Service& service, const BatchFiles& files, const BatchOptions& options,
                    Console& console) {
    const std::string text = ReadInput(files.input, console.in);
    const BatchFile batch(text, files.input, options);
    Counts counts;
    if (files.output == "-") {
        counts = Run(service, batch, options, console.out, console);
    } else {
        OutputFile file(files.output);
        counts = Run(service, batch, options, file.Stream(), console);
        file.Keep();
    }
    console.err << counts.Summary() << '\n';
    if (const auto found = counts.upcANumbers.Found()) {
        console.err << "linewright: note: " << Sentence(*found, console.language) << '\n';
    }
    return counts.refused == 0 ? kDone : kRowsRefused;
}

}  // namespace linewright
