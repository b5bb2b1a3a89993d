#pragma once

#include "IPMUnknown.h"

class IApplication;

constexpr PMIID IID_ISESSION = 0x0F05;

/** The session: owner of the host's process-wide services, reached by their interface ids. */
class ISession : public IPMUnknown {
  public:
    enum { kDefaultIID = IID_ISESSION };

    /** A reference to the application, or nullptr. The caller releases it. */
    virtual IApplication* QueryApplication() const = 0;
};

/** The session of the current execution context, not counted; nullptr outside of any. */
PUBLIC_DECL ISession* GetExecutionContextSession();
