#pragma once

#include "IDialog.h"
#include "RsrcSpec.h"

constexpr PMIID IID_IDIALOGMGR = 0x0F08;

/** Makes dialogs from a plug-in's view resources. */
class IDialogMgr : public IPMUnknown {
  public:
    enum { kDefaultIID = IID_IDIALOGMGR };

    /** A new dialog, owned by the manager and not counted for the caller; nullptr when the plug-in
     *  has no such resource. */
    virtual IDialog* CreateNewDialog(const RsrcSpec& resource, IDialog::DialogType type,
                                     bool16 visible) = 0;
};
