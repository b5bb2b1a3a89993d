#include "merge/MergeFile.h"

#include <fmt/format.h>

#include <chrono>
#include <exception>
#include <utility>

#include "merge/Journal.h"
#include "merge/MergeOutput.h"
#include "merge/OutputNames.h"
#include "merge/Worker.h"
#include "merge/Workers.h"
#include "text/Readable.h"

namespace linewright {

namespace {

/** So many rows pass between two looks at the clock, unless each takes long. */
constexpr std::uint64_t kRowsBetweenLooks = 1024;

/** A worker gets so many bytes at a time; few, where each row takes long. */
constexpr std::size_t kChunk = std::size_t{1} << 17;
constexpr std::size_t kVerifiedChunk = std::size_t{1} << 11;

/** The journal hears of so many bytes of input at a time, and takes one part of the time. */
constexpr std::uint64_t kBetweenPoints = std::uint64_t{1} << 20;
constexpr int kPartsOfTime = 10;

/** Rows on their way from a file into others. */
class Run : public AnswerTaker {
  public:
    Run(const MergePlace& runPlace, const MergeFiles& runFiles, const MergeOptions& runOptions)
        : place(runPlace),
          options(runOptions),
          file(runFiles.input, place.in, options.rows, [this] { BeforeWaiting(); }),
          walk(file, options.shard),
          encoding(options.to.value_or(file.FileEncoding())),
          results(ColumnsOf(ResultsOf(options), options.keepsInput)),
          isInputStandard(runFiles.input == "-") {
        if (!options.rejects.empty()) {
            rejectColumns.emplace(ColumnsOf({Result::kLine, Result::kReason}, true));
        }
        // They hold none of the files that are opened after them.
        if (options.jobs > 1) {
            workers.emplace(options.jobs, *this,
                            [this](auto& chunks, auto& answers) { Work(chunks, answers); });
        }
        if (options.isResumed) {
            journal.emplace(runFiles.output, runFiles.input, options.circumstances);
        }
        out.emplace(runFiles.output, place.out, encoding, options.isResumed);
        if (!options.rejects.empty()) {
            rejects.emplace(options.rejects, place.out, encoding, options.isResumed);
        }
    }

    /** What is finished when something goes wrong is written all the same. */
    MergeResult Take() try {
        if (IsWhole()) return {journal->Last().counts, std::nullopt};
        Begin();
        if (workers) {
            TakeInWorkers();
        } else {
            TakeHere();
        }
        if (unreadable && !stoppedAt) std::rethrow_exception(unreadable);
        return {counts, stoppedAt};
    } catch (const Failure&) {
        Flush();
        throw;
    }

    void Keep() {
        file.Close();
        if (IsWhole()) {
            out->KeepWhole(journal->Last().output);
            if (rejects) rejects->KeepWhole(journal->Last().rejects);
            return;
        }
        if (stoppedAt) {
            out->Writer().Flush();
            if (journal) out->Discard();
        } else {
            if (journal) Reach(walk.Position(), true);
            out->Keep();
        }
        if (rejects) rejects->Keep();
    }

    /** All that the run writes is in its place. */
    void End() {
        if (journal) journal->Remove();
    }

  private:
    using Clock = std::chrono::steady_clock;

    bool IsWhole() const { return journal && journal->Last().isWhole; }

    void TakeHere() {
        Merge merge = MergeInto(out->Writer(), rejects ? &rejects->Writer() : nullptr);
        const std::uint64_t between = place.scan ? 1 : kRowsBetweenLooks;
        while (!stoppedAt && NextRow()) {
            file.Named([&] { merge.Take(file.Row()); });
            const MergeCounts& newer = merge.Counts();
            if (options.stopAt && counts.refused + newer.refused >= *options.stopAt) {
                stoppedAt = file.Row().line;
            }
            if (newer.rows < between) continue;
            Count(merge.HandOverCounts());
            if (IsTimeToReach(walk.Position())) Reach(walk.Position(), false);
            if (place.show) place.show(file, counts.rows);
        }
        Count(merge.HandOverCounts());
    }

    void TakeInWorkers() try {
        while (!stoppedAt && NextRow()) {
            const Record& row = file.Row();
            if (chunk.text.empty()) chunk.line = row.line;
            // At once, or a long row would be copied twice.
            chunk.text.reserve(chunk.text.size() + row.text.size() + row.ending.size());
            chunk.text.append(row.text).append(row.ending);
            chunk.end = walk.Position();
            if (chunk.text.size() < (place.scan ? kVerifiedChunk : kChunk)) continue;
            GiveChunk();
            if (place.show) place.show(file, counts.rows);
        }
        GiveChunk();
        workers->TakeAll();
    } catch (const Failure&) {
        if (!stoppedAt) throw;
    }

    /** False at the end, and before what cannot be read. */
    bool NextRow() {
        bool isAny = false;
        try {
            isAny = walk.Next();
        } catch (const Failure&) {
            unreadable = std::current_exception();
        }
        if (unwritable) std::rethrow_exception(unwritable);
        return isAny;
    }

    /** What goes wrong here is no fault of the input, which is being read. */
    void BeforeWaiting() try {
        if (unwritable) return;
        if (!workers) return Flush();
        GiveChunk();
        if (isInputStandard) {
            workers->TakeUntilInput();
        } else {
            workers->TakeAll();
        }
    } catch (const Failure&) {
        unwritable = std::current_exception();
    }

    void GiveChunk() {
        if (chunk.text.empty()) return;
        workers->Give(chunk);
        chunk.text.clear();
    }

    /** In a process of its own, which has a copy of all this. */
    void Work(ChunkPipe& chunks, AnswerPipe& answers) {
        AnswerSink outSink(answers, FrameKind::kOutput);
        AnswerSink rejectSink(answers, FrameKind::kRejects);
        BlockWriter outWriter(outSink, encoding);
        BlockWriter rejectWriter(rejectSink, encoding);
        Merge merge = MergeInto(outWriter, rejectColumns ? &rejectWriter : nullptr);
        RecordReader reader(chunks, options.rows.maxRecord);
        reader.SetDelimiter(file.Delimiter());
        const auto answer = [&](std::uint64_t refusedLine) {
            outWriter.Flush();
            rejectWriter.Flush();
            answers.Send(FrameKind::kCounts, JsonOf(merge.HandOverCounts()), refusedLine);
        };
        answers.SendFailure(place.language, [&] {
            try {
                while (const auto line = chunks.Next()) {
                    reader.SetLine(*line);
                    while (reader.Next()) {
                        file.Named([&] { merge.Take(reader.Current()); });
                        // The run may end with this row.
                        if (options.stopAt && merge.Counts().refused > 0)
                            answer(reader.Current().line);
                    }
                    answer(0);
                    answers.Send(FrameKind::kEnd);
                }
            } catch (const Failure&) {
                answer(0);
                throw;
            }
        });
    }

    void TakeOutput(std::string_view bytes) override {
        if (!stoppedAt) out->Bytes().Write(bytes);
    }
    void TakeRejects(std::string_view bytes) override {
        if (!stoppedAt) rejects->Bytes().Write(bytes);
    }
    void TakeCounts(const MergeCounts& newer, std::uint64_t refusedLine) override {
        if (stoppedAt) return;
        Count(newer);
        if (options.stopAt && counts.refused >= *options.stopAt) stoppedAt = refusedLine;
    }
    void TakeEnd(std::uint64_t end) override {
        if (!stoppedAt && IsTimeToReach(end)) Reach(end, false);
    }

    Merge MergeInto(BlockWriter& outWriter, BlockWriter* rejectWriter) {
        return Merge({.service = place.service,
                      .columns = file.Columns(),
                      .results = results,
                      .out = outWriter,
                      .rejectColumns = rejectWriter ? &*rejectColumns : nullptr,
                      .rejects = rejectWriter,
                      .scan = place.scan},
                     options, place.language);
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

    void Begin() {
        if (journal) {
            const MergePoint& last = journal->Last();
            out->GoOnAt(last.output);
            if (rejects) rejects->GoOnAt(last.rejects);
            counts = last.counts;
            reached = last.input;
            if (last.input > 0) return walk.GoTo(last.input);
        }
        BeginOutput(*out, results);
        if (rejects) BeginOutput(*rejects, *rejectColumns);
        Flush();
    }

    void BeginOutput(MergeOutput& output, ResultColumns& columns) {
        if (options.shard && options.shard->part > 1 && !options.haveAllShardsHeader) return;
        const bool isChanged = encoding != file.FileEncoding();
        const bool isMarked = isChanged ? encoding == Encoding::kUtf16LittleEndian ||
                                              encoding == Encoding::kUtf16BigEndian
                                        : file.HasByteOrderMark();
        if (isMarked) output.Writer().Append(kByteOrderMark);
        if (file.Header()) columns.AppendHeader(output.Writer(), *file.Header());
    }

    void Count(const MergeCounts& newer) {
        counts.Add(newer);
        if (journal) unreached.AddAll(newer);
    }

    bool IsTimeToReach(std::uint64_t position) const {
        return journal && position >= reached + kBetweenPoints && Clock::now() >= nextReach;
    }

    /** The drafts are on the disk before the journal says so. */
    void Reach(std::uint64_t position, bool isWhole) {
        const Clock::time_point begin = Clock::now();
        const std::uint64_t outSize = out->Sync();
        const std::uint64_t rejectsSize = rejects ? rejects->Sync() : 0;
        journal->Reach({.input = position,
                        .output = outSize,
                        .rejects = rejectsSize,
                        .counts = std::exchange(unreached, {}),
                        .isWhole = isWhole});
        reached = position;
        const Clock::time_point end = Clock::now();
        nextReach = end + kPartsOfTime * (end - begin);
    }

    void Flush() {
        if (out) out->Writer().Flush();
        if (rejects) rejects->Writer().Flush();
    }

    const MergePlace& place;
    const MergeOptions& options;
    std::optional<Workers> workers;
    std::optional<Journal> journal;
    std::optional<MergeOutput> rejects;
    std::optional<MergeOutput> out;
    std::exception_ptr unreadable;
    std::exception_ptr unwritable;
    Chunk chunk;
    RowFile file;
    RowWalk walk;
    Encoding encoding;
    ResultColumns results;
    std::optional<ResultColumns> rejectColumns;
    bool isInputStandard;

    MergeCounts counts;
    std::optional<std::uint64_t> stoppedAt;
    // Up to where the journal is, and what it does not know yet.
    std::uint64_t reached = 0;
    MergeCounts unreached;
    Clock::time_point nextReach = Clock::now();
};

}  // namespace

MergeResult MergeFile(const MergePlace& place, const MergeFiles& files,
                      const MergeOptions& options) {
    RequireOutputs(files, options);
    Run run(place, files, options);
    MergeResult result = run.Take();
    run.Keep();
    if (!options.summary.empty()) {
        const bool isLasting = options.isResumed && options.summary != "-";
        MergeOutput summary(options.summary, place.out, Encoding::kUtf8, isLasting);
        if (isLasting) summary.GoOnAt(0);
        summary.Writer().Append(SummaryOf(result.counts));
        summary.Keep();
    }
    run.End();
    return result;
}

}  // namespace linewright
