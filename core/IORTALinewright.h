#pragma once

#include "IPMUnknown.h"
#include "core/LinewrightRequest.h"
#include "core/PluginID.h"

/** The service by which other plug-ins reach the encoders. Main thread only. */
class IORTALinewright : public IPMUnknown {
  public:
    enum { kDefaultIID = linewright::IID_IORTALINEWRIGHT };

    /** Carries out one request and writes its result into the record; see LinewrightRequest. */
    virtual void ProcessRequest(linewright::LinewrightRequest* request) = 0;
};
