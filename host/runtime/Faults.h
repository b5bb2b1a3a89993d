#pragma once

#include "host/runtime/Host.h"

namespace host {

/** Whether this allocation, which is counted, is the one that shall fail. */
bool AllocationFails();
bool IoFails(Faults::Io operation);
/** Whether the interface is one that was taken away. */
bool IsTakenAway(PMIID interfaceID);

}  // namespace host
