#pragma once

#include "IPMUnknown.h"
#include "host/runtime/Host.h"

namespace host {

/** Which allocation from now on is the one that shall fail; 0 for none. */
extern uint32 allocationsToFailure;
/** Whether this allocation, which is counted, is that one. */
inline bool AllocationFails() {
    return allocationsToFailure != 0 && --allocationsToFailure == 0;
}
bool IoFails(Faults::Io operation);
/** The interface that was taken away; IID_IPMUNKNOWN for none. */
extern PMIID takenAway;
inline bool IsTakenAway(PMIID interfaceID) {
    return interfaceID != IID_IPMUNKNOWN && interfaceID == takenAway;
}

}  // namespace host
