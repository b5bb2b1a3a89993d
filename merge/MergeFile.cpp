#include "merge/MergeFile.h"

#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <nlohmann/json.hpp>
#include <utility>

#include "merge/OutputFile.h"
#include "text/Readable.h"

namespace linewright {

namespace {

/** So many rows pass between two looks at the clock, unless each takes long. */
constexpr std::uint64_t kRowsBetweenLooks = 1024;

/** A file that is written with the rows, or standard output. */
class Output {
  public:
    Output(const std::string& name, std::ostream& standardOutput, Encoding encoding) {
        if (name == "-") {
            sink = std::make_unique<StreamSink>(standardOutput);
        } else {
            auto opened = std::make_unique<OutputFile>(name);
            file = opened.get();
            sink = std::move(opened);
        }
        writer.emplace(*sink, encoding);
    }

    BlockWriter& Writer() { return *writer; }
    void Keep() {
        writer->Flush();
        if (file) file->Keep();
    }

  private:
    std::unique_ptr<ByteSink> sink;
    OutputFile* file = nullptr;
    std::optional<BlockWriter> writer;
};

/** Rows on their way from a file into others. */
class Run {
  public:
    Run(const MergePlace& runPlace, const MergeFiles& runFiles, const MergeOptions& runOptions)
        : place(runPlace),
          options(runOptions),
          file(runFiles.input, place.in, options.rows, [this] { Flush(); }),
          encoding(options.to.value_or(file.FileEncoding())),
          results(ColumnsOf(ResultsOf(options), options.keepsInput)) {
        if (!options.rejects.empty()) {
            rejectColumns.emplace(ColumnsOf({Result::kLine, Result::kReason}, true));
        }
        out.emplace(runFiles.output, place.out, encoding);
        if (!options.rejects.empty()) rejects.emplace(options.rejects, place.out, encoding);
    }

    /** What is finished when something goes wrong is written all the same. */
    MergeResult Take() try { return TakeRows(); } catch (const Failure&) {
        Flush();
        throw;
    }

    void Keep(bool isWhole) {
        file.Close();
        if (isWhole) {
            out->Keep();
        } else {
            out->Writer().Flush();
        }
        if (rejects) rejects->Keep();
    }

  private:
    MergeResult TakeRows() {
        Begin(*out, results);
        if (rejects) Begin(*rejects, *rejectColumns);
        Merge merge({.service = place.service,
                     .columns = file.Columns(),
                     .results = results,
                     .out = out->Writer(),
                     .rejectColumns = rejects ? &*rejectColumns : nullptr,
                     .rejects = rejects ? &rejects->Writer() : nullptr,
                     .scan = place.scan},
                    options, place.language);
        MergeResult result;
        const std::uint64_t between = place.scan ? 1 : kRowsBetweenLooks;
        std::uint64_t next = between;
        while (!result.stoppedAt && file.Next()) {
            file.Named([&] { merge.Take(file.Row()); });
            const MergeCounts& counts = merge.Counts();
            if (options.stopAt && counts.refused >= *options.stopAt) {
                result.stoppedAt = file.Row().line;
            }
            if (counts.rows < next) continue;
            next = counts.rows + between;
            if (place.show) place.show(file, counts.rows);
        }
        result.counts = merge.Counts();
        return result;
    }

    ResultColumns ColumnsOf(std::vector<Result> wanted, bool keepsInput) {
        return file.Named([&] {
            ResultColumns columns(std::move(wanted), file.Columns().Names(), options.names,
                                  keepsInput, file.Delimiter());
            if (columns.IsReplaced(options.rows.dataColumn)) {
                throw Failure(
                    fmt::format("the column \"{}\" receives results and cannot hold the data",
                                Readable(options.rows.dataColumn)));
            }
            return columns;
        });
    }

    void Begin(Output& output, ResultColumns& columns) {
        const bool isChanged = encoding != file.FileEncoding();
        const bool isMarked = isChanged ? encoding == Encoding::kUtf16LittleEndian ||
                                              encoding == Encoding::kUtf16BigEndian
                                        : file.HasByteOrderMark();
        if (isMarked) output.Writer().Append(kByteOrderMark);
        if (file.Header()) columns.AppendHeader(output.Writer(), *file.Header());
    }

    void Flush() {
        if (out) out->Writer().Flush();
        if (rejects) rejects->Writer().Flush();
    }

    const MergePlace& place;
    const MergeOptions& options;
    std::optional<Output> rejects;
    std::optional<Output> out;
    RowFile file;
    Encoding encoding;
    ResultColumns results;
    std::optional<ResultColumns> rejectColumns;
};

}  // namespace

std::string SummaryOf(const MergeCounts& counts) {
    std::vector<std::pair<std::string, std::uint64_t>> reasons(counts.reasons.begin(),
                                                               counts.reasons.end());
    std::stable_sort(reasons.begin(), reasons.end(),
                     [](const auto& a, const auto& b) { return a.second > b.second; });
    nlohmann::ordered_json summary{{"rows", counts.rows},
                                   {"encoded", counts.rows - counts.refused},
                                   {"warnings", counts.warned},
                                   {"refused", counts.refused},
                                   {"reasons", nlohmann::ordered_json::array()}};
    for (const auto& [reason, rows] : reasons) {
        summary["reasons"].push_back({{"reason", reason}, {"rows", rows}});
    }
    return summary.dump(2) + '\n';
}

namespace {

/** What is written last would take the place of the other one. */
void RequireDifferent(const std::vector<std::string>& outputs) {
    for (auto name = outputs.begin(); name != outputs.end(); ++name) {
        if (!name->empty() && std::find(name + 1, outputs.end(), *name) != outputs.end()) {
            throw Failure(
                fmt::format("{}: two outputs cannot have the same name", Readable(*name)));
        }
    }
}

}  // namespace

MergeResult MergeFile(const MergePlace& place, const MergeFiles& files,
                      const MergeOptions& options) {
    RequireDifferent({files.output, options.rejects, options.summary});
    Run run(place, files, options);
    MergeResult result = run.Take();
    run.Keep(!result.stoppedAt);
    if (!options.summary.empty()) {
        Output summary(options.summary, place.out, Encoding::kUtf8);
        summary.Writer().Append(SummaryOf(result.counts));
        summary.Keep();
    }
    return result;
}

}  // namespace linewright
