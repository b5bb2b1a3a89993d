#include "plugin/LWRActionComponent.h"

#include "core/OpenPluginDialog.h"
#include "core/PluginID.h"

namespace linewright {

void LWRActionComponent::DoAction(IActiveContext*, ActionID actionID, GSysPoint, IPMUnknown*) {
    if (actionID == kPreferencesActionID) {
        OpenPluginDialog(kPrefsDialogResourceID, IDialog::kMovableModal);
    } else if (actionID == kUtilityActionID) {
        OpenPluginDialog(kUtilityDialogResourceID, IDialog::kModeless);
    }
}

}  // namespace linewright
