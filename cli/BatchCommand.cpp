#include "cli/BatchCommand.h"

#include <fmt/format.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "cli/Encoding.h"
#include "cli/Failure.h"
#include "cli/FontText.h"
#include "cli/OutputFile.h"
#include "cli/ReadAll.h"
#include "cli/Utf8.h"

namespace linewright {

namespace {

std::string ReadInput(const std::string& name, std::istream& standardInput) {
    if (name == "-") return ReadAll(standardInput);
    const std::filesystem::path path = PathFromUtf8(name);
    std::error_code error;
    std::ifstream file(path, std::ios::binary);
    if (!file || std::filesystem::is_directory(path, error)) {
        throw Failure(
            fmt::format("{}: there is no such file, or it cannot be read", Readable(name)));
    }
    return ReadAll(file);
}

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

RowResult ResultOf(Service& service, const RowWish& wish, bool isStrict, Counts& counts) {
    const EncodeRequest request{
        .typeName = wish.type,
        .data = wish.data,
        .isUtf8 = true,
        .checkCharacter = wish.checkCharacter,
        .ratio = wish.ratio,
    };
    const BarcodeOutcome outcome = MakeBarcode(service, request, isStrict);
    if (!outcome.isMade) {
        ++counts.refused;
    } else if (!outcome.warnings.empty()) {
        ++counts.warned;
    }
    return {
        .barcode = FontText(outcome.bytes),
        .status = outcome.status ? std::to_string(*outcome.status) : "",
        .message = outcome.message,
        .warning = Joined(outcome.warnings),
    };
}

/** A file taken apart, and the work on it. */
class BatchJob {
  public:
    BatchJob(std::string_view text, const BatchOptions& wanted)
        : options(wanted),
          delimiter(options.delimiter.value_or(DetectCsvDelimiter(text))),
          file(ReadCsv(text, delimiter)),
          columns(Header(), options, delimiter) {}

    Counts Run(Service& service, std::ostream& out, Console& console) const {
        Counts counts;
        Progress progress(console, file.records.size());
        out << file.byteOrderMark << columns.HeaderLine(file.records.front());
        for (std::size_t i = 1; i < file.records.size(); ++i) {
            const CsvRecord& row = file.records[i];
            if (row.IsBlank()) {
                out << row.ending;
                continue;
            }
            ++counts.rows;
            out << columns.RowLine(row, ResultOfRow(service, row, counts));
            progress.Show(i, counts);
        }
        return counts;
    }

  private:
    const CsvRecord& Header() const {
        if (file.records.empty() || file.records.front().IsBlank()) {
            throw Failure("there is no header row");
        }
        return file.records.front();
    }

    RowResult ResultOfRow(Service& service, const CsvRecord& row, Counts& counts) const {
        RowWish wish;
        try {
            wish = columns.WishOf(row);
        } catch (const Failure& failure) {
            ++counts.refused;
            return {.barcode = "", .status = "", .message = failure.what(), .warning = ""};
        }
        return ResultOf(service, wish, options.isStrict, counts);
    }

    const BatchOptions& options;
    char delimiter;
    CsvFile file;
    BatchColumns columns;
};

BatchJob OpenJob(std::string_view text, const std::string& name, const BatchOptions& options) {
    try {
        if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF")) {
            throw Failure("the file is UTF-16; save it as CSV in UTF-8");
        }
        return BatchJob(text, options);
    } catch (const Failure& failure) {
        throw Failure(fmt::format("{}: {}", Readable(name), failure.what()));
    }
}

}  // namespace

ExitStatus RunBatch(Service& service, const BatchFiles& files, const BatchOptions& options,
                    Console& console) {
    const std::string text = ReadInput(files.input, console.in);
    const BatchJob job = OpenJob(text, files.input, options);
    Counts counts;
    if (files.output == "-") {
        counts = job.Run(service, console.out, console);
    } else {
        OutputFile file(files.output);
        counts = job.Run(service, file.Stream(), console);
        file.Keep();
    }
    console.err << counts.Summary() << '\n';
    return counts.refused == 0 ? kDone : kRowsRefused;
}

}  // namespace linewright
