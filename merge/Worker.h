#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "merge/ByteSink.h"
#include "merge/ByteSource.h"
#include "words/Words.h"

namespace linewright {

// What a worker and the one who gives it chunks send each other through pipes.

struct ChunkHead {
    std::uint64_t line = 1;
    std::uint64_t size = 0;
};

enum class FrameKind : std::uint64_t { kOutput, kRejects, kCounts, kEnd, kFailure };

struct FrameHead {
    FrameKind kind = FrameKind::kEnd;
    /** Of kCounts the line of the last row that was refused. */
    std::uint64_t line = 0;
    /** Of the bytes that follow. */
    std::uint64_t size = 0;
};

/** The system's own pipe. */
class Pipe {
  public:
    Pipe() = default;
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    virtual ~Pipe() = default;

    /** At most `capacity` bytes; 0 at the end. */
    virtual std::size_t Read(char* block, std::size_t capacity) = 0;
    virtual void Write(std::string_view bytes) = 0;
};

/** The chunks that a worker gets, each a text of its own. */
class ChunkPipe : public ByteSource {
  public:
    /** The pipe is borrowed. */
    explicit ChunkPipe(Pipe& borrowed) : pipe(borrowed) {}

    /** The line on which the next chunk begins; none where no more comes. */
    std::optional<std::uint64_t> Next();
    std::size_t Read(char* block, std::size_t capacity) override;

  private:
    Pipe& pipe;
    std::uint64_t left = 0;
};

/** What a worker answers. */
class AnswerPipe {
  public:
    /** The pipe is borrowed. */
    explicit AnswerPipe(Pipe& borrowed) : pipe(borrowed) {}

    void Send(FrameKind kind, std::string_view bytes = {}, std::uint64_t line = 0);
    /** Runs a worker's work. Sends the sentence of what it throws, and takes no further chunk. */
    void SendFailure(Language language, const std::function<void()>& work);

  private:
    Pipe& pipe;
};

/** Sends what is written for one of the outputs. */
class AnswerSink : public ByteSink {
  public:
    /** The pipe is borrowed. */
    AnswerSink(AnswerPipe& borrowed, FrameKind frameKind) : pipe(borrowed), kind(frameKind) {}

    void Write(std::string_view bytes) override { pipe.Send(kind, bytes); }

  private:
    AnswerPipe& pipe;
    FrameKind kind;
};

}  // namespace linewright
