#pragma once

#include <vector>

#include "host/runtime/Stream.h"

namespace host {

using Bytes = std::vector<uchar>;

/** A stream over bytes in memory. */
class MemoryStream final : public Stream {
  public:
    /** Writes. */
    MemoryStream() = default;
    /** Reads. */
    explicit MemoryStream(Bytes bytes) : fIsReading(true), fBytes(std::move(bytes)) {}

    bool16 IsReading() const noexcept override { return fIsReading ? kTrue : kFalse; }
    void Close() noexcept override {}
    const Bytes& Written() const { return fBytes; }

  private:
    int32 Move(uchar* buffer, int32 count) override;

    bool fIsReading = false;
    Bytes fBytes;
    std::size_t fPosition = 0;
};

}  // namespace host
