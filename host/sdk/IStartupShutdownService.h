#pragma once

#include "IPMUnknown.h"

constexpr PMIID IID_ISTARTUPSHUTDOWN = 0x0F03;

/** A service that the host runs once before, and once after, everything else a plug-in does.
 *  Main thread only. */
class IStartupShutdownService : public IPMUnknown {
  public:
    enum { kDefaultIID = IID_ISTARTUPSHUTDOWN };

    virtual ErrorCode Startup() = 0;
    virtual void Shutdown() = 0;
};
