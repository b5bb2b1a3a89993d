#include "core/OpenPluginDialog.h"

#include "IApplication.h"
#include "IDialogMgr.h"
#include "ISession.h"
#include "InterfacePtr.h"
#include "LocaleSetting.h"
#include "core/PluginID.h"

namespace linewright {

int32 OpenPluginDialog(int32 resourceID, IDialog::DialogType kind) {
    const ISession* const session = GetExecutionContextSession();
    const InterfacePtr<IApplication> application(session ? session->QueryApplication() : nullptr);
    const InterfacePtr<IDialogMgr> manager(application ? application->QueryDialogMgr() : nullptr);
    if (!manager) return 0;
    const RsrcSpec resource{WLocaleSetting::GetLocale(), kLinewrightPluginID,
                            FourCharCode('V', 'I', 'E', 'W'), resourceID};
    IDialog* const dialog = manager->CreateNewDialog(resource, kind, kTrue);
    if (!dialog) return 0;
    dialog->Open();
    return 1;
}

}  // namespace linewright
