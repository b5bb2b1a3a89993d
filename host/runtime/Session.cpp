#include "host/runtime/Session.h"

#include "CPMUnknown.h"
#include "IApplication.h"
#include "ISession.h"
#include "host/runtime/Bind.h"
#include "host/runtime/DialogManager.h"
#include "host/runtime/Faults.h"
#include "host/runtime/MemoryService.h"
#include "host/runtime/Running.h"

namespace host {

namespace {

class Session final : public CPMUnknown<ISession> {
  public:
    using CPMUnknown::CPMUnknown;

    IApplication* QueryApplication() const noexcept override {
        return static_cast<IApplication*>(
            GetRunning()->application->QueryInterface(IID_IAPPLICATION));
    }
};

class Application final : public CPMUnknown<IApplication> {
  public:
    using CPMUnknown::CPMUnknown;

    IDialogMgr* QueryDialogMgr() const noexcept override {
        return static_cast<IDialogMgr*>(QueryInterface(IID_IDIALOGMGR));
    }
};

}  // namespace

const BossClass kSessionClass{.name = "kSessionBoss",
                              .bindings = {Bind<Session>(), Bind<MemoryService>()}};

const BossClass kApplicationClass{.name = "kAppBoss",
                                  .bindings = {Bind<Application>(), Bind<DialogManager>()}};

}  // namespace host

ISession* GetExecutionContextSession() {
    const host::Running* const running = host::GetRunning();
    return running && !host::IsTakenAway(IID_ISESSION) ? running->executionSession : nullptr;
}
