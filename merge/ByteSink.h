#pragma once

#include <ostream>
#include <string_view>

namespace linewright {

/** Where bytes go. */
class ByteSink {
  public:
    ByteSink() = default;
    ByteSink(const ByteSink&) = delete;
    ByteSink& operator=(const ByteSink&) = delete;
    virtual ~ByteSink() = default;

    /** Hands them on at once. Throws Failure where they cannot be written. */
    virtual void Write(std::string_view bytes) = 0;
};

/** Standard output. */
class StreamSink : public ByteSink {
  public:
    /** The stream is borrowed. */
    explicit StreamSink(std::ostream& borrowed) : stream(borrowed) {}

    void Write(std::string_view bytes) override;

  private:
    std::ostream& stream;
};

}  // namespace linewright
