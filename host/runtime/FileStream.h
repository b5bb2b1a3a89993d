#pragma once

#include <cstdio>
#include <filesystem>
#include <optional>

#include "files/NewFile.h"
#include "host/runtime/Stream.h"

namespace host {

/** Reads a file from its start. */
class ReadStream final : public Stream {
  public:
    /** Takes the open file over. */
    ReadStream(std::FILE* file, std::filesystem::path path) : fFile(file), fPath(std::move(path)) {}

    bool16 IsReading() const noexcept override { return kTrue; }
    void Close() noexcept override;

  private:
    ~ReadStream() override { Close(); }
    int32 Move(uchar* buffer, int32 count) override;

    std::FILE* fFile;
    std::filesystem::path fPath;
};

/** Writes a file, which is there when it is closed without a failure; one that holds the same
 *  already is left alone. */
class WriteStream final : public Stream {
  public:
    /** In the state of a failure when the file cannot be written, or not be replaced. */
    explicit WriteStream(const std::filesystem::path& path);

    bool16 IsReading() const noexcept override { return kFalse; }
    void Close() noexcept override;

  private:
    ~WriteStream() override = default;
    int32 Move(uchar* buffer, int32 count) override;

    std::optional<files::NewFile> fFile;
};

/** nullptr when there is no such file or it cannot be read, which is said on standard error; what
 *  is no file, such as a folder or a pipe, cannot be. While the host runs. */
Stream* OpenForReading(const std::filesystem::path& path);
/** nullptr when the file cannot be written or replaced, or could not be read before. While the host
 *  runs. */
Stream* OpenForWriting(const std::filesystem::path& path);

}  // namespace host
