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
#include "host/runtime/Paths.h"
#include "merge/Failure.h"
#include "merge/OutputFile.h"
#include "merge/RowFile.h"
#include "proofs/Proof.h"
#include "requests/DrawnBarcode.h"
#include "text/Readable.h"

namespace linewright {

namespace {

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

/** Makes a proof of rows, one after the other. */
class RowProof {
  public:
    RowProof(Service& runService, const DrawOptions& runOptions, const std::string& title,
             Language runLanguage)
        : service(runService),
          options(runOptions),
          language(runLanguage),
          fonts(host::PathFromUtf8(runOptions.fonts)),
          proof(fonts, runOptions.isLetter ? Paper::kLetter : Paper::kA4, title, runLanguage) {}

    void Add(RowColumns& columns, const Record& row) {
        BarcodeWish wish;
        try {
            wish = columns.BarcodeWishOf(row);
            const DrawnBarcode drawn = DrawBarcode(service, fonts, wish, options.drawing);
            if (drawn.drawing) return proof.Show(drawn, wish, columns.TitleOf(row), row.line);
            proof.Refuse(wish, WhyRefused(drawn.outcome, language), row.line);
        } catch (const DrawingFailure& failure) {
            if (failure.problem.IsOfMachine()) throw;
            proof.Refuse(wish, AdvisedSentence(failure, language), row.line);
        } catch (const Failure& failure) {
            proof.Refuse(wish, failure.what(), row.line);
        }
    }

    const ProofCounts& Counts() const { return proof.Counts(); }
    std::string Finish() { return proof.Finish(Today()); }

  private:
    Service& service;
    const DrawOptions& options;
    Language language;
    Fonts fonts;
    Proof proof;
};

}  // namespace

ExitStatus RunProof(Service& service, const MergeFiles& files, const RowOptions& options,
                    const DrawOptions& drawing, Console& console) {
    RowFile source(files.input, console.in, options);
    const std::string name = host::Utf8FromPath(host::PathFromUtf8(files.input).filename());
    RowProof proof(service, drawing, fmt::format("Linewright proof of {}", Readable(name)),
                   console.language);
    {
        Progress progress(console);
        while (source.Next()) {
            if (!source.Row().IsBlank()) proof.Add(source.Columns(), source.Row());
            progress.Show(source, proof.Counts().rows);
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
    console.err << proof.Counts().Summary() << '\n';
    if (drawing.isVerified && proof.Counts().unreadable > 0) return kDoesNotScan;
    return proof.Counts().refused == 0 ? kDone : kRowsRefused;
}

}  // namespace linewright
