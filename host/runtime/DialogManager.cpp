#include "host/runtime/DialogManager.h"

#include "host/runtime/Dialog.h"
#include "host/runtime/Running.h"

namespace host {

IDialog* DialogManager::CreateNewDialog(const RsrcSpec& resource, IDialog::DialogType type,
                                        bool16 /*visible*/) noexcept {
    if (resource.type != FourCharCode('V', 'I', 'E', 'W')) return nullptr;
    Running& running = *GetRunning();
    const DialogResource* const description = running.views.Find(resource.plugin, resource.id);
    if (!description) return nullptr;
    Boss* const boss = new Boss(*running.classes.Find(description->classID));
    running.dialogs.push_back(boss);
    const InterfacePtr<IDialog> dialog(boss, UseDefaultIID());
    static_cast<Dialog*>(dialog.get())->Build(*description, type);
    return dialog;  // outlives this reference by the host's own
}

}  // namespace host
