#include "tests/host/TestPlugIn.h"

#include "CAlert.h"
#include "CPMUnknown.h"
#include "FileUtils.h"
#include "IMemoryService.h"
#include "IPMStream.h"
#include "ISession.h"
#include "IStartupShutdownService.h"
#include "SysBeep.h"

extern "C" PlugIn* GetPlugIn() {
    static PlugIn plugIn;
    return &plugIn;
}

namespace {

int32 starts = 0;

/** Beeps when the plug-in is unloaded. */
struct Bell {
    PMString name{"bell"};
    ~Bell() { SysBeep(); }
} bell;

bool HostIsComplete() {
    IDFile folder;
    const InterfacePtr<IMemoryService> memory(GetExecutionContextSession(), UseDefaultIID());
    return memory && FileUtils::GetAppRoamingDataFolder(&folder) &&
           FileUtils::GetAppFolder(&folder);
}

/** Fails when the application folder holds something named "refuse". */
class Starter : public CPMUnknown<IStartupShutdownService> {
  public:
    using CPMUnknown::CPMUnknown;

    ErrorCode Startup() override {
        CAlert::InformationAlert(PMString("kStarted"));
        starts = HostIsComplete() ? starts + 1 : -1;
        IDFile refuse;
        FileUtils::GetAppFolder(&refuse);
        FileUtils::AppendPath(&refuse, PMString("refuse"));
        return FileUtils::DoesFileExist(refuse) ? kFailure : kSuccess;
    }
    void Shutdown() override { CAlert::InformationAlert(PMString("kStopped")); }
};

class SecondStarter : public CPMUnknown<IStartupShutdownService> {
  public:
    using CPMUnknown::CPMUnknown;

    ErrorCode Startup() override {
        CAlert::InformationAlert(PMString("kSecondStarted"));
        return kSuccess;
    }
    void Shutdown() override { CAlert::InformationAlert(PMString("kSecondStopped")); }
};

/** Takes a reference once more while it is destroyed. */
class Echo : public CPMUnknown<IEcho> {
  public:
    explicit Echo(IPMUnknown* boss) : CPMUnknown(boss) { ++objects; }
    ~Echo() override {
        const InterfacePtr<IPMUnknown> last(this, IID_IPMUNKNOWN);
        --objects;
    }

    int32 CountStarts() const override { return starts; }
    int32 CountObjects() const override { return objects; }

  private:
    static int32 objects;
};
int32 Echo::objects = 0;

class Note : public CPMUnknown<INote> {
  public:
    using CPMUnknown::CPMUnknown;

    int32 Get() const override { return held; }
    void Set(int32 number) override {
        PreDirty();
        held = number;
    }
    void ReadWrite(IPMStream* stream, ImplementationID) { stream->XferInt32(held); }

  private:
    int32 held = 0;
};

CREATE_PMINTERFACE(Starter, 0x99000);
CREATE_PMINTERFACE(SecondStarter, 0x99001);
CREATE_PMINTERFACE(Echo, 0x99002);
CREATE_PERSIST_PMINTERFACE(Note, 0x99003);

}  // namespace
