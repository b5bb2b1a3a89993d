#pragma once

#include "IPMUnknown.h"

class IDialogMgr;

constexpr PMIID IID_IAPPLICATION = 0x0F06;

/** The running application. */
class IApplication : public IPMUnknown {
  public:
    enum { kDefaultIID = IID_IAPPLICATION };

    /** A reference to the dialog manager, or nullptr. The caller releases it. */
    virtual IDialogMgr* QueryDialogMgr() const = 0;
};
