#include "plugin/PreferencesFile.h"

#include <cstring>

#include "CAlert.h"
#include "FileUtils.h"
#include "InterfacePtr.h"
#include "StreamUtil.h"
#include "core/HostMemory.h"
#include "core/PreferencesRecord.h"

namespace linewright {

namespace {

constexpr OSType kAnyType = FourCharCode('?', '?', '?', '?');
constexpr auto kRecordSize = static_cast<int32>(sizeof(LinewrightPrefsRecord));

bool useLocalConfig = false;

void AppendName(IDFile& folder, const char* name) {
    PMString text;
    text.SetCString(name);
    FileUtils::AppendPath(&folder, text);
}

bool LocatePlugInsFolder(IDFile& folder) {
    if (!FileUtils::GetAppFolder(&folder)) return false;
    AppendName(folder, "Plug-Ins");
    return true;
}

/** A record's worth of host memory, zeroed, for as long as it is needed. */
class RecordBuffer {
  public:
    RecordBuffer() : bytes(AllocBlock(kRecordSize)) {
        if (bytes) std::memset(bytes, 0, kRecordSize);
    }
    RecordBuffer(const RecordBuffer&) = delete;
    RecordBuffer& operator=(const RecordBuffer&) = delete;
    ~RecordBuffer() { FreeBlock(bytes); }

    /** Reads from the file; false when nothing could be read. */
    bool Read(const IDFile& file) const {
        const InterfacePtr<IPMStream> stream(
            bytes ? StreamUtil::CreateFileStreamRead(file, kOpenIn, kAnyType, kAnyType) : nullptr);
        return stream && stream->XferByte(bytes, kRecordSize) > 0;
    }
    LinewrightPrefsRecord Record() const {
        LinewrightPrefsRecord record;
        std::memcpy(&record, bytes, sizeof record);
        return record;
    }

  private:
    uint8* bytes;
};

bool HasOurFormat(const LinewrightPrefsRecord& record) {
    constexpr auto& ours = kDefaultPreferences.signature;
    return record.signature.length == ours.length &&
           std::memcmp(record.signature.text, ours.text, ours.length) == 0 &&
           record.version == kPreferencesVersion;
}

bool ResetPreferences() {
    preferences = kDefaultPreferences;
    SavePreferences();
    return false;
}

}  // namespace

void ClearLocalConfig() {
    useLocalConfig = false;
}

void DetectLocalConfig() {
    IDFile folder;
    if (!LocatePlugInsFolder(folder)) return;
    AppendName(folder, "Corvane");
    AppendName(folder, "Config");
    useLocalConfig = FileUtils::DoesFileExist(folder);
}

bool LocatePreferencesFile(IDFile& file) {
    if (useLocalConfig ? !LocatePlugInsFolder(file) : !FileUtils::GetAppRoamingDataFolder(&file))
        return false;
    for (const char* const folder : {"Corvane", "Config"}) {
        AppendName(file, folder);
        FileUtils::CreateFolderIfNeeded(file);
    }
    AppendName(file, "QVT Linewright.prf");
    return true;
}

bool LoadPreferences() {
    IDFile file;
    const RecordBuffer buffer;
    if (!LocatePreferencesFile(file) || !buffer.Read(file)) return ResetPreferences();
    if (const LinewrightPrefsRecord record = buffer.Record(); HasOurFormat(record)) {
        preferences = record;
        return true;
    }
    CAlert::WarningAlert(PMString("0x122100kLWRPrefsResetMessageKey"));
    return ResetPreferences();
}

bool SavePreferences() {
    IDFile file;
    if (!LocatePreferencesFile(file)) return false;
    const InterfacePtr<IPMStream> stream(
        StreamUtil::CreateFileStreamWrite(file, kOpenOut | kOpenTrunc, kAnyType, kAnyType));
    if (!stream) return false;
    LinewrightPrefsRecord record = preferences;
    stream->XferByte(reinterpret_cast<uchar*>(&record), kRecordSize);
    stream->Close();
    return stream->GetStreamState() != kStreamStateFailure;
}

}  // namespace linewright
