#pragma once

namespace host {

/** Halts, where rules are checked, when a host runs that was not handed over to this thread. */
void CheckThread();
/** Lets any thread in: no host runs. */
void ForgetThread();

}  // namespace host
