#include "host/runtime/DialogManager.h"

#include <new>

#include "host/runtime/Dialog.h"
#include "host/runtime/Running.h"

namespace host {

namespace {

/** A new dialog, which the running host owns. */
IDialog* Make(Running& running, const DialogResource& resource, IDialog::DialogType type) {
    Boss* const boss = new Boss(*running.classes.Find(resource.classID));
    running.dialogs.push_back(boss);
    const InterfacePtr<IDialog> dialog(boss, UseDefaultIID());
    static_cast<Dialog*>(dialog.get())->Build(resource, type);
    return dialog;  // outlives this reference by the host's own
}

}  // namespace

IDialog* DialogManager::CreateNewDialog(const RsrcSpec& resource, IDialog::DialogType type,
                                        bool16 /*visible*/) noexcept try {
    if (resource.type != FourCharCode('V', 'I', 'E', 'W')) return nullptr;
    Running& running = *GetRunning();
    const DialogResource* const found = running.views.Find(resource.plugin, resource.id);
    return found ? Make(running, *found, type) : nullptr;
} catch (const std::bad_alloc&) {
    return nullptr;
}

}  // namespace host
