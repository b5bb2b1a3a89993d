#include "plugin/LWRPrefsDialogObserver.h"

#include "IControlView.h"
#include "IStringListControlData.h"
#include "ISubject.h"
#include "WidgetID.h"
#include "core/PluginID.h"
#include "core/PreferencesRecord.h"
#include "plugin/DialogWidget.h"
#include "plugin/MsiCoupling.h"

namespace linewright {

void LWRPrefsDialogObserver::AutoAttach() {
    CDialogObserver::AutoAttach();
    const InterfacePtr<IPanelControlData> panel(this, UseDefaultIID());
    AttachToWidget(kMsiFirstCheckWidgetID, IID_ISTRINGLISTCONTROLDATA, panel);
    AttachToWidget(kMsiSecondCheckWidgetID, IID_ISTRINGLISTCONTROLDATA, panel);
}

void LWRPrefsDialogObserver::AutoDetach() {
    CDialogObserver::AutoDetach();
    const InterfacePtr<IPanelControlData> panel(this, UseDefaultIID());
    DetachFromWidget(kMsiFirstCheckWidgetID, IID_ISTRINGLISTCONTROLDATA, panel);
    DetachFromWidget(kMsiSecondCheckWidgetID, IID_ISTRINGLISTCONTROLDATA, panel);
}

void LWRPrefsDialogObserver::Update(const ClassID& change, ISubject* subject, const PMIID& protocol,
                                    void* changedBy) {
    CDialogObserver::Update(change, subject, protocol, changedBy);
    if (change != kPopupChangeStateMessage || protocol != IID_ISTRINGLISTCONTROLDATA) return;
    const InterfacePtr<IControlView> view(subject, UseDefaultIID());
    if (!view) return;
    // The live record, not the controller's copy: a choice made here outlasts a cancelled dialog.
    const WidgetID popUp = view->GetWidgetID();
    if (popUp == kMsiFirstCheckWidgetID) {
        preferences.msiFirstCheck = static_cast<int16>(SelectedItem(this, popUp));
    } else if (popUp == kMsiSecondCheckWidgetID) {
        preferences.msiSecondCheck = static_cast<int16>(SelectedItem(this, popUp));
    } else {
        return;
    }
    CoupleMsiChecks(preferences, this);
}

}  // namespace linewright
