#include "FileUtils.h"

#include "host/runtime/Faults.h"
#include "host/runtime/FilePath.h"
#include "host/runtime/HostText.h"
#include "host/runtime/Paths.h"
#include "host/runtime/Running.h"

namespace fs = std::filesystem;

namespace {

bool16 GetFolder(IDFile* folder, std::optional<fs::path> host::Running::*which) {
    const host::Running* const running = host::GetRunning();
    if (!folder || !running || !(running->*which)) return kFalse;
    host::SetPath(*folder, *(running->*which));
    return kTrue;
}

}  // namespace

bool16 FileUtils::GetAppRoamingDataFolder(IDFile* folder) try {
    return GetFolder(folder, &host::Running::roamingFolder);
} catch (...) {
    return kFalse;
}

bool16 FileUtils::GetAppFolder(IDFile* folder) try {
    return GetFolder(folder, &host::Running::appFolder);
} catch (...) {
    return kFalse;
}

void FileUtils::AppendPath(IDFile* folder, const PMString& name) try {
    // An entry lies below its folder, also when its name looks like a full path.
    const fs::path entry = host::PathFromUtf8(host::ToUtf8(name)).relative_path();
    if (folder) host::SetPath(*folder, host::PathOf(*folder) / entry);
} catch (...) {
}

bool16 FileUtils::CreateFolderIfNeeded(const IDFile& folder) try {
    const fs::path path = host::PathOf(folder);
    if (fs::is_directory(path)) return kTrue;
    if (host::IoFails(host::Faults::Io::kCreateFolder)) return kFalse;
    return fs::create_directory(path) ? kTrue : kFalse;
} catch (...) {
    return kFalse;
}

bool16 FileUtils::DoesFileExist(const IDFile& file) try {
    return fs::exists(host::PathOf(file)) ? kTrue : kFalse;
} catch (...) {
    return kFalse;
}
