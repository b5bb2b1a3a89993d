#include <fmt/chrono.h>
#include <fmt/format.h>

#include <charconv>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <string_view>

#include "cli/DrawCommand.h"
#include "cli/DrawingAdvice.h"
#include "cli/Progress.h"
#include "cli/VerdictWords.h"
#include "host/runtime/Paths.h"
#include "merge/Failure.h"
#include "merge/OutputFile.h"
#include "merge/RowFile.h"
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

/** Today, or the day of SOURCE_DATE_EPOCH so that a proof can be made again to the byte. */
std::string Today() {
    std::time_t now = std::time(nullptr);
    if (const char* const epoch = std::getenv("SOURCE_DATE_EPOCH")) {
        const std::string_view text(epoch);
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), now);
        if (error != std::errc() || end != text.data() + text.size()) {
            throw Failure("SOURCE_DATE_EPOCH is no number of seconds");
        }
    }
    return fmt::format("{:%Y-%m-%d}", fmt::gmtime(now));
}

std::string FontOf(const BarcodeDrawing& drawing, const BarcodeType& type) {
    if (type.face == nullptr) return "text, for any face";
    return fmt::format("{}, {:.2f} pt", type.face->family, drawing.FontSize());
}

std::string SizeOf(const BarcodeDrawing& drawing, const BarcodeType& type) {
    const double x = drawing.Module() * type.dimensions.modulesPerX;
    return fmt::format("X {:.3f} mm, {:.1f} %; bars {:.2f} mm high", x / kMillimetre,
                       100 * x / type.dimensions.xDimension, drawing.BarHeight() / kMillimetre);
}

/** Makes a sheet of rows, one after the other. */
class Proof {
  public:
    Proof(Service& runService, const DrawOptions& runOptions, const std::string& title,
          Language runLanguage)
        : service(runService),
          options(runOptions),
          language(runLanguage),
          fonts(host::PathFromUtf8(runOptions.fonts)),
          sheet(fonts, runOptions.isLetter ? Paper::kLetter : Paper::kA4, title) {}

    void Add(RowColumns& columns, const Record& row) {
        ++counts.rows;
        BarcodeWish wish;
        try {
            wish = columns.BarcodeWishOf(row);
            const DrawnBarcode drawn = DrawBarcode(service, fonts, wish, options.drawing);
            if (drawn.drawing) return Show(drawn, wish, columns.TitleOf(row), row.line);
            Refuse(row, wish, WhyRefused(drawn.outcome, language));
        } catch (const DrawingFailure& failure) {
            if (failure.problem.IsOfMachine()) throw;
            Refuse(row, wish, AdvisedSentence(failure, language));
        } catch (const Failure& failure) {
            Refuse(row, wish, failure.what());
        }
    }

    std::string Finish() {
        std::vector<std::string> lines{Today(), counts.Summary(), ""};
        lines.insert(lines.end(), refused.begin(), refused.end());
        return sheet.Finish(lines);
    }

    ProofCounts counts;

  private:
    void Refuse(const Record& row, const BarcodeWish& wish, const std::string& why) {
        ++counts.refused;
        refused.push_back(
            fmt::format("line {}  {}  {}", row.line, Readable(wish.type), Readable(wish.data)));
        refused.push_back(fmt::format("    refused  {}", why));
    }

    void Show(const DrawnBarcode& drawn, const BarcodeWish& wish, const std::string& title,
              std::uint64_t line) {
        const BarcodeType& type = *drawn.outcome.type;
        const Verification verification = Verify(*drawn.drawing, drawn.outcome.meaning);
        if (verification.verdict == Verdict::kNoScanner) ++counts.withoutScanner;
        if (verification.IsBad()) ++counts.unreadable;
        const std::string read = verification.WhatWasRead();
        std::vector<std::string> lines{
            fmt::format("data  {}", Readable(wish.data)),
            fmt::format("font  {}", FontOf(*drawn.drawing, type)),
            fmt::format("size  {}", SizeOf(*drawn.drawing, type)),
            fmt::format("read  {}{}", VerdictWords(verification), read.empty() ? "" : ": " + read)};
        if (type.face == nullptr) lines.erase(lines.begin() + 2);
        if (drawn.outcome.note) {
            lines.push_back("note  " + Sentence(*drawn.outcome.note, language));
        }
        for (const Warning& warning : drawn.outcome.Warnings()) {
            lines.push_back("note  " + Sentence(warning, language));
        }
        for (const DrawingWarning& warning : drawn.warnings) {
            lines.push_back("note  " + Sentence(warning, language));
        }
        std::string head = fmt::format("{}, line {}", type.shortName, line);
        if (!title.empty()) head = fmt::format("{}  ({})", Readable(title), head);
        sheet.Add({*drawn.drawing, std::move(head), std::move(lines)});
    }

    Service& service;
    const DrawOptions& options;
    Language language;
    Fonts fonts;
    Sheet sheet;
    std::vector<std::string> refused;
};

}  // namespace

ExitStatus RunProof(Service& service, const MergeFiles& files, const RowOptions& options,
                    const DrawOptions& drawing, Console& console) {
    RowFile source(files.input, console.in, options);
    const std::string name = host::Utf8FromPath(host::PathFromUtf8(files.input).filename());
    Proof proof(service, drawing, fmt::format("Linewright proof of {}", Readable(name)),
                console.language);
    {
        Progress progress(console);
        while (source.Next()) {
            if (!source.Row().IsBlank()) proof.Add(source.Columns(), source.Row());
            progress.Show(source, proof.counts.rows);
        }
    }
    const std::string sheet = proof.Finish();
    if (files.output == "-") {
        console.out << sheet;
    } else {
        OutputFile file(files.output);
        file.Write(sheet);
        file.Keep();
    }
    console.err << proof.counts.Summary() << '\n';
    if (drawing.isVerified && proof.counts.unreadable > 0) return kDoesNotScan;
    return proof.counts.refused == 0 ? kDone : kRowsRefused;
}

}  // namespace linewright
