#pragma once

#include "CPMUnknown.h"
#include "IDialogMgr.h"

namespace host {

/** Makes dialogs from the plug-in's resources; the running host owns them until they are closed. */
class DialogManager final : public CPMUnknown<IDialogMgr> {
  public:
    using CPMUnknown::CPMUnknown;

    IDialog* CreateNewDialog(const RsrcSpec& resource, IDialog::DialogType type,
                             bool16 visible) noexcept override;
};

}  // namespace host
