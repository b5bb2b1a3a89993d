#include <fmt/format.h>

#include "cli/DrawCommand.h"
#include "cli/Progress.h"
#include "documents/DocumentFile.h"

namespace linewright {

namespace {

std::string Summary(const DocumentResult& result) {
    const MergeCounts& counts = result.counts;
    return fmt::format("{} row{}: {} set on {} page{} ({} with warnings), {} refused", counts.rows,
                       counts.rows == 1 ? "" : "s", counts.rows - counts.refused, result.pages,
                       result.pages == 1 ? "" : "s", counts.warned, counts.refused);
}

}  // namespace

ExitStatus RunDocument(Service& service, const MergeFiles& files, const MergeOptions& options,
                       const DrawOptions& drawing, Console& console) {
    DocumentResult result;
    {
        Progress progress(console);
        const DocumentPlace place{
            .service = service,
            .in = console.in,
            .out = console.out,
            .language = console.language,
            .say =
                [&console](std::uint64_t line, const std::string& sentence) {
                    console.err << fmt::format("linewright: line {}: {}\n", line, sentence);
                },
            .show = [&progress](const RowFile& file, auto rows) { progress.Show(file, rows); },
        };
        result =
            MakeDocumentFile(place, {files, options, drawing.layout, drawing.drawing.xDimension,
                                     drawing.drawing.magnification, drawing.fonts});
    }
    if (const auto found = result.counts.upcANumbers.Found()) {
        console.err << "linewright: note: " << Sentence(*found, console.language) << '\n';
    }
    if (result.stoppedAt) {
        console.err << fmt::format(
            "linewright: stopped at line {}: so many rows are refused; the "
            "document is not written\n",
            *result.stoppedAt);
        return kTrouble;
    }
    console.err << Summary(result) << '\n';
    return result.counts.refused == 0 || options.areRefusalsFine ? kDone : kRowsRefused;
}

}  // namespace linewright
