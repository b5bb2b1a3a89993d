#pragma once

#include "host/runtime/Halt.h"

namespace host {

/** Halts when a host runs that was not handed over to this thread. */
void HaltOnOtherThread();
/** The same, where rules are checked. */
inline void CheckThread() {
    if (kChecksRules) HaltOnOtherThread();
}
/** Lets any thread in: no host runs. */
void ForgetThread();

}  // namespace host
