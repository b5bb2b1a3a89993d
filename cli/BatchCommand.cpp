#include "cli/BatchCommand.h"

#include <fmt/format.h>

#include "cli/DrawingModule.h"
#include "cli/Progress.h"
#include "words/Words.h"

namespace linewright {

namespace {

std::string Summary(const MergeCounts& counts) {
    return fmt::format("{} row{}: {} encoded ({} with warnings), {} refused", counts.rows,
                       counts.rows == 1 ? "" : "s", counts.rows - counts.refused, counts.warned,
                       counts.refused);
}

}  // namespace

ExitStatus RunBatch(Service& service, const MergeFiles& files, const MergeOptions& options,
                    Console& console) {
    MergeResult result;
    {
        Progress progress(console);
        MergePlace place{
            .service = service,
            .in = console.in,
            .out = console.out,
            .language = console.language,
            .show = [&progress](const RowFile& file, auto rows) { progress.Show(file, rows); },
        };
        if (options.isVerified) place.scan = OpenDrawingModule().scanner(service, options.fonts);
        result = MergeFile(place, files, options);
    }
    console.err << Summary(result.counts) << '\n';
    if (const auto found = result.counts.upcANumbers.Found()) {
        console.err << "linewright: note: " << Sentence(*found, console.language) << '\n';
    }
    if (result.stoppedAt) {
        console.err << fmt::format("linewright: stopped at line {}: so many rows are refused{}\n",
                                   *result.stoppedAt,
                                   files.output == "-" ? "" : "; the output is not written");
        return kTrouble;
    }
    return result.counts.refused == 0 || options.areRefusalsFine ? kDone : kRowsRefused;
}

}  // namespace linewright
