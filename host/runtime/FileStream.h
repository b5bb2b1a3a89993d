#pragma once

#include <cstdio>
#include <filesystem>

#include "host/runtime/Stream.h"

namespace host {

/** Reads a file from its start. */
class ReadStream final : public Stream {
  public:
    /** Takes the open file over. */
    explicit ReadStream(std::FILE* file) : fFile(file) {}

    bool16 IsReading() const noexcept override { return kTrue; }
    void Close() noexcept override;

  private:
    ~ReadStream() override { Close(); }
    int32 Move(uchar* buffer, int32 count) override;

    std::FILE* fFile;
};

/** Writes beside a file, which it replaces when it is closed without a failure. */
class WriteStream final : public Stream {
  public:
    /** Takes the open file over that lies at `draft` and is to become `target`. */
    WriteStream(std::FILE* file, std::filesystem::path draft, std::filesystem::path target);

    bool16 IsReading() const noexcept override { return kFalse; }
    void Close() noexcept override;

  private:
    ~WriteStream() override;
    int32 Move(uchar* buffer, int32 count) override;
    bool Finish();
    void Discard();

    std::FILE* fFile;
    std::filesystem::path fDraft;
    std::filesystem::path fTarget;
};

/** nullptr when there is no such file or it cannot be read; a folder is no file. */
Stream* OpenForReading(const std::filesystem::path& path);
/** nullptr when the file cannot be written, or not be replaced. */
Stream* OpenForWriting(const std::filesystem::path& path);

}  // namespace host
