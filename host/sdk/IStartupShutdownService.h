#pragma once

#include "IPMUnknown.h"

/** A service that the host runs once before, and once after, everything else a plug-in does.
 *  Main thread only. */
class IStartupShutdownService : public IPMUnknown {
  public:
    enum { kDefaultIID = 0x0F03 };

    virtual ErrorCode Startup() = 0;
    virtual void Shutdown() = 0;
};

const PMIID IID_ISTARTUPSHUTDOWN(IStartupShutdownService::kDefaultIID);
