#include "cli/BatchCommand.h"

#include <fmt/format.h>

#include <chrono>

#include "cli/BatchFile.h"
#include "cli/Failure.h"
#include "cli/OutputFile.h"
#include "cli/ScannedBarcode.h"
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

    std::string Summary() const {
        return fmt::format("{}: {} encoded ({} with warnings), {} refused", Times(rows, "row"),
                           rows - refused, warned, refused);
    }
};

/** A line on a terminal that says how far the work is, several times a second. */
class Progress {
  public:
    Progress(Console& shownOn, std::size_t records) : console(shownOn), total(records) {}
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress() {
        if (isShown) console.err << kEraseLine << std::flush;
    }

    void Show(std::size_t done, const Counts& counts) {
        const auto now = std::chrono::steady_clock::now();
        if (!console.isErrTerminal || now < next) return;
        next = now + std::chrono::milliseconds(200);
        isShown = true;
        console.err << kEraseLine << fmt::format("{:3} %  {}", 100 * done / total, counts.Summary())
                    << std::flush;
    }

  private:
    static constexpr std::string_view kEraseLine = "\r\x1B[K";

    Console& console;
    std::size_t total;
    std::chrono::steady_clock::time_point next =
        std::chrono::steady_clock::now() + std::chrono::milliseconds(500);
    bool isShown = false;
};

RowResult ResultOf(Service& service, const BarcodeWish& wish, const BatchOptions& options,
                   Language language, Counts& counts) {
    const ScannedBarcode made = options.isVerified
                                    ? EncodeAndScan(service, wish, options.fonts)
                                    : ScannedBarcode{MakeBarcode(service, wish), "", ""};
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

RowResult ResultOfRow(Service& service, const BatchFile& batch, const CsvRecord& row,
                      const BatchOptions& options, Language language, Counts& counts) {
    BarcodeWish wish;
    try {
        wish = batch.Columns().WishOf(row);
    } catch (const Failure& failure) {
        ++counts.refused;
        RowResult result;
        result.message = failure.what();
        return result;
    }
    return ResultOf(service, wish, options, language, counts);
}

Counts Run(Service& service, const BatchFile& batch, const BatchOptions& options, std::ostream& out,
           Console& console) {
    Counts counts;
    const CsvFile& file = batch.File();
    Progress progress(console, file.records.size());
    out << file.byteOrderMark << batch.Columns().HeaderLine(file.records.front());
    for (std::size_t i = 1; i < file.records.size(); ++i) {
        const CsvRecord& row = file.records[i];
        if (row.IsBlank()) {
            out << row.ending;
            continue;
        }
        ++counts.rows;
        out << batch.Columns().RowLine(
            row, ResultOfRow(service, batch, row, options, console.language, counts));
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
    return counts.refused == 0 ? kDone : kRowsRefused;
}

}  // namespace linewright
