#include "host/runtime/Faults.h"

#include "IApplication.h"
#include "IDialogMgr.h"
#include "IMemoryService.h"
#include "ISession.h"

namespace host {

namespace {

Faults::Io failingIo = Faults::Io::kNone;

PMIID InterfaceOf(Faults::Missing what) {
    switch (what) {
        case Faults::Missing::kNothing: break;
        case Faults::Missing::kSession: return IID_ISESSION;
        case Faults::Missing::kMemoryService: return IID_IMEMORYSERVICE;
        case Faults::Missing::kApplication: return IID_IAPPLICATION;
        case Faults::Missing::kDialogManager: return IID_IDIALOGMGR;
    }
    return IID_IPMUNKNOWN;
}

}  // namespace

uint32 allocationsToFailure = 0;
PMIID takenAway = IID_IPMUNKNOWN;

void Faults::FailAllocation(uint32 n) {
    allocationsToFailure = n;
}

void Faults::FailIo(Io operation) {
    failingIo = operation;
}

void Faults::TakeAway(Missing what) {
    takenAway = InterfaceOf(what);
}

bool IoFails(Faults::Io operation) {
    return failingIo == operation;
}

}  // namespace host
