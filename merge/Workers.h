#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "merge/MergeCounts.h"

namespace linewright {

/** Whole records of a file, as UTF-8. */
struct Chunk {
    std::string text;
    /** The line on which the first one begins, from 1. */
    std::uint64_t line = 1;
    /** Where in the file the last one ends, in bytes. */
    std::uint64_t end = 0;
};

/** Where the workers' answers go, chunk by chunk in their order. */
class AnswerTaker {
  public:
    AnswerTaker() = default;
    AnswerTaker(const AnswerTaker&) = delete;
    AnswerTaker& operator=(const AnswerTaker&) = delete;
    virtual ~AnswerTaker() = default;

    virtual void TakeOutput(std::string_view bytes) = 0;
    virtual void TakeRejects(std::string_view bytes) = 0;
    /** Of the rows whose bytes were taken since the last call; `line` is that of the last row
     *  which was refused. */
    virtual void TakeCounts(const MergeCounts& counts, std::uint64_t line) = 0;
    /** All of a chunk was taken, which ends there. */
    virtual void TakeEnd(std::uint64_t end) = 0;
};

class AnswerPipe;
class ChunkPipe;

/** Processes that work on chunks, side by side. */
class Workers {
  public:
    /** What a worker does with the chunks it gets, until there are no more. */
    using Work = std::function<void(ChunkPipe&, AnswerPipe&)>;

    /** Copies this process as it stands. Throws Failure where the system has no such thing. The
     *  taker is borrowed. */
    Workers(unsigned count, AnswerTaker& taker, const Work& work);
    Workers(const Workers&) = delete;
    Workers& operator=(const Workers&) = delete;
    /** Ends them. */
    ~Workers();

    /** Gives a chunk to the one that has the least to do, and takes answers while it waits. Throws
     *  Failure for what a worker failed with, and for one that ended. */
    void Give(const Chunk& chunk);
    /** Takes answers until standard input has something, or all are taken. */
    void TakeUntilInput();
    void TakeAll();

  private:
    struct Worker;

    Worker& LeastBusy();
    bool Wait(int descriptor, short events);
    void TakeFrame();
    [[noreturn]] void FailFor(Worker& worker) const;

    AnswerTaker& answers;
    std::vector<std::unique_ptr<Worker>> workers;
    /** Who works on the chunks that are not answered, and where these end, in their order. */
    std::deque<std::pair<Worker*, std::uint64_t>> open;
    std::string piece;
};

}  // namespace linewright
