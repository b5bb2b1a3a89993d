#pragma once

#include "IPMUnknown.h"

constexpr PMIID IID_IDIALOG = 0x0F07;

/** One dialog. Main thread only. */
class IDialog : public IPMUnknown {
  public:
    enum { kDefaultIID = IID_IDIALOG };

    /** Modal ones close on OK or Cancel; a modeless one stays open after OK. */
    enum DialogType { kMovableModal = 1, kModeless = 2 };

    /** Shows the dialog; a modal one returns when it is closed. */
    virtual void Open() = 0;
};
