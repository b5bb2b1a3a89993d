#include "host/runtime/FileStream.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include "host/runtime/Faults.h"
#include "host/runtime/Platform.h"
#include "host/runtime/Running.h"

namespace fs = std::filesystem;

namespace host {

namespace {

/** What cannot be opened is not there, or else somebody hears of it. */
Stream* NoStream(const fs::path& path, int reason) {
    if (reason == ENOENT || reason == ENOTDIR) return nullptr;
    const bool isNoFile = reason == EINVAL;
    GetRunning()->unreadable.Add(
        path, isNoFile ? "it is no file" : std::generic_category().message(reason));
    return nullptr;
}

}  // namespace

void ReadStream::Close() noexcept {
    if (!fFile) return;
    std::fclose(std::exchange(fFile, nullptr));
    SetState(kStreamStateEOF);
}

int32 ReadStream::Move(uchar* buffer, int32 count) {
    const auto wanted = static_cast<size_t>(count);
    const size_t moved = IoFails(Faults::Io::kRead) ? 0 : std::fread(buffer, 1, wanted, fFile);
    if (moved == wanted) return count;
    if (!IoFails(Faults::Io::kRead) && !std::ferror(fFile)) {
        SetState(kStreamStateEOF);
        return static_cast<int32>(moved);
    }
    SetState(kStreamStateFailure);
    NoStream(fPath, EIO);
    return 0;
}

WriteStream::WriteStream(const fs::path& path)
    : fFile(std::in_place, path, files::Manner{.writesDevices = false, .leavesSame = true}) {
    if (!fFile->Error().empty()) SetState(kStreamStateFailure);
}

int32 WriteStream::Move(uchar* buffer, int32 count) {
    const std::string_view bytes(reinterpret_cast<const char*>(buffer), static_cast<size_t>(count));
    if (!IoFails(Faults::Io::kWrite) && fFile->Write(bytes)) return count;
    SetState(kStreamStateFailure);
    return 0;
}

void WriteStream::Close() noexcept {
    if (!fFile) return;
    const bool isKept = GetStreamState() == kStreamStateGood && !IoFails(Faults::Io::kFlush) &&
                        !IoFails(Faults::Io::kRename) && fFile->Keep();
    fFile.reset();
    SetState(isKept ? kStreamStateEOF : kStreamStateFailure);
}

Stream* OpenForReading(const fs::path& path) {
    Unreadable& unreadable = GetRunning()->unreadable;
    if (unreadable.Holds(path.parent_path())) return nullptr;
    if (IoFails(Faults::Io::kOpenRead)) return NoStream(path, EIO);
    std::FILE* const file = OpenFile(path);
    if (!file) return NoStream(path, errno);
    unreadable.Remove(path);
    return new ReadStream(file, path);
}

Stream* OpenForWriting(const fs::path& path) {
    if (IoFails(Faults::Io::kOpenWrite) || GetRunning()->unreadable.Holds(path)) return nullptr;
    auto* const stream = new WriteStream(path);
    if (stream->GetStreamState() == kStreamStateGood) return stream;
    stream->Release();
    return nullptr;
}

}  // namespace host
