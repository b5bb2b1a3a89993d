#include "host/runtime/FileStream.h"

#include <utility>

#include "host/runtime/Faults.h"
#include "host/runtime/Platform.h"

namespace fs = std::filesystem;

namespace host {

namespace {

/** Whether a file may take the place of what is there now. */
bool IsReplaceable(const fs::path& path) {
    if (!fs::exists(path)) return true;
    if (!fs::is_regular_file(path)) return false;
    std::FILE* const file = OpenFile(path, OpenMode::kUpdate);
    if (file) std::fclose(file);
    return file != nullptr;
}

/** A place beside a file that no other stream writes to. */
fs::path DraftFor(const fs::path& target) {
    static unsigned drafts = 0;
    fs::path draft = target;
    draft += ".new-" + std::to_string(ProcessNumber()) + "-" + std::to_string(++drafts);
    return draft;
}

}  // namespace

void ReadStream::Close() noexcept {
    if (!fFile) return;
    std::fclose(std::exchange(fFile, nullptr));
    SetState(kStreamStateEOF);
}

int32 ReadStream::Move(uchar* buffer, int32 count) {
    if (IoFails(Faults::Io::kRead)) {
        SetState(kStreamStateFailure);
        return 0;
    }
    const auto moved = static_cast<int32>(std::fread(buffer, 1, static_cast<size_t>(count), fFile));
    if (moved < count) SetState(std::ferror(fFile) ? kStreamStateFailure : kStreamStateEOF);
    return moved;
}

WriteStream::WriteStream(std::FILE* file, fs::path draft, fs::path target)
    : fFile(file), fDraft(std::move(draft)), fTarget(std::move(target)) {}

WriteStream::~WriteStream() {
    if (fFile) Discard();
}

int32 WriteStream::Move(uchar* buffer, int32 count) {
    const auto wanted = static_cast<size_t>(count);
    const size_t moved = IoFails(Faults::Io::kWrite) ? 0 : std::fwrite(buffer, 1, wanted, fFile);
    if (moved < wanted) SetState(kStreamStateFailure);
    return static_cast<int32>(moved);
}

void WriteStream::Close() noexcept {
    if (!fFile) return;
    if (GetStreamState() != kStreamStateGood || !Finish()) {
        Discard();
        SetState(kStreamStateFailure);
    } else {
        SetState(kStreamStateEOF);
    }
}

bool WriteStream::Finish() {
    if (IoFails(Faults::Io::kFlush) || !FlushToDisk(fFile)) return false;
    if (std::fclose(std::exchange(fFile, nullptr)) != 0) return false;
    if (IoFails(Faults::Io::kRename)) return false;
    std::error_code error;
    fs::rename(fDraft, fTarget, error);
    if (error) return false;
    FlushFolder(fTarget.parent_path());
    return true;
}

void WriteStream::Discard() {
    if (fFile) std::fclose(std::exchange(fFile, nullptr));
    std::error_code ignored;
    fs::remove(fDraft, ignored);
}

Stream* OpenForReading(const fs::path& path) {
    if (IoFails(Faults::Io::kOpenRead) || fs::is_directory(path)) return nullptr;
    std::FILE* const file = OpenFile(path, OpenMode::kRead);
    return file ? new ReadStream(file) : nullptr;
}

Stream* OpenForWriting(const fs::path& path) {
    if (IoFails(Faults::Io::kOpenWrite) || !IsReplaceable(path)) return nullptr;
    // A link stays; the file that it leads to is replaced.
    const fs::path target = fs::exists(path) ? fs::canonical(path) : fs::absolute(path);
    const fs::path draft = DraftFor(target);
    std::FILE* const file = OpenFile(draft, OpenMode::kWrite);
    return file ? new WriteStream(file, draft, target) : nullptr;
}

}  // namespace host
