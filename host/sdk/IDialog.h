#pragma once

#include "IPMUnknown.h"

/** One dialog. Main thread only. */
class IDialog : public IPMUnknown {
  public:
    enum { kDefaultIID = 0x0F07 };

    /** Modal ones close on OK or Cancel; a modeless one stays open after OK. */
    enum DialogType { kMovableModal = 1, kModeless = 2 };

    /** Shows the dialog; a modal one returns when it is closed. */
    virtual void Open() = 0;
};

const PMIID IID_IDIALOG(IDialog::kDefaultIID);
