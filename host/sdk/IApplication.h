#pragma once

#include "IPMUnknown.h"

class IDialogMgr;

/** The running application. */
class IApplication : public IPMUnknown {
  public:
    enum { kDefaultIID = 0x0F06 };

    /** A reference to the dialog manager, or nullptr. The caller releases it. */
    virtual IDialogMgr* QueryDialogMgr() const = 0;
};

const PMIID IID_IAPPLICATION(IApplication::kDefaultIID);
