#pragma once

#include "CPMUnknown.h"
#include "IStartupShutdownService.h"

namespace linewright {

/** Prepares preferences and registry before any menu, dialog or request can arrive. */
class LWRStartupShutdown : public CPMUnknown<IStartupShutdownService> {
  public:
    using CPMUnknown::CPMUnknown;

    ErrorCode Startup() override;
    void Shutdown() override;
};

}  // namespace linewright
