#pragma once

#include "CPMUnknown.h"
#include "core/IORTALinewright.h"

namespace linewright {

/** The service interface; keeps nothing between requests. */
class ORTALinewright : public CPMUnknown<IORTALinewright> {
  public:
    using CPMUnknown::CPMUnknown;

    void ProcessRequest(LinewrightRequest* request) override;
};

}  // namespace linewright
