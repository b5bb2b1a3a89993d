#include "CDialogObserver.h"

#include "CoreResTypes.h"
#include "IBooleanControlData.h"
#include "IControlView.h"
#include "ISubject.h"
#include "WidgetID.h"
#include "host/runtime/Dialog.h"

CDialogObserver::CDialogObserver(IPMUnknown* boss) : CObserver(boss) {}

CDialogObserver::~CDialogObserver() = default;

void CDialogObserver::AutoAttach() {
    const InterfacePtr<IPanelControlData> panel(this, UseDefaultIID());
    AttachToWidget(kOKButtonWidgetID, IID_IBOOLEANCONTROLDATA, panel);
    AttachToWidget(kCancelButton_WidgetID, IID_IBOOLEANCONTROLDATA, panel);
}

void CDialogObserver::AutoDetach() {
    const InterfacePtr<IPanelControlData> panel(this, UseDefaultIID());
    DetachFromWidget(kOKButtonWidgetID, IID_IBOOLEANCONTROLDATA, panel);
    DetachFromWidget(kCancelButton_WidgetID, IID_IBOOLEANCONTROLDATA, panel);
}

void CDialogObserver::Update(const ClassID& change, ISubject* subject, const PMIID& protocol,
                             void*) {
    if (change != kTrueStateMessage || protocol != IID_IBOOLEANCONTROLDATA) return;
    const InterfacePtr<IControlView> view(subject, UseDefaultIID());
    const InterfacePtr<IDialog> dialog(this, UseDefaultIID());
    if (!view || !dialog) return;
    if (view->GetWidgetID() == kOKButtonWidgetID)
        static_cast<host::Dialog*>(dialog.get())->Confirm();
    if (view->GetWidgetID() == kCancelButton_WidgetID)
        static_cast<host::Dialog*>(dialog.get())->Cancel();
}

void CDialogObserver::AttachToWidget(const WidgetID& widgetID, const PMIID& protocol,
                                     const IPanelControlData* panel) {
    const InterfacePtr<ISubject> subject(panel ? panel->FindWidget(widgetID) : nullptr,
                                         UseDefaultIID());
    if (subject) subject->AttachObserver(this, protocol);
}

void CDialogObserver::DetachFromWidget(const WidgetID& widgetID, const PMIID& protocol,
                                       const IPanelControlData* panel) {
    const InterfacePtr<ISubject> subject(panel ? panel->FindWidget(widgetID) : nullptr,
                                         UseDefaultIID());
    if (subject) subject->DetachObserver(this, protocol);
}
