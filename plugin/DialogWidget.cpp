#include "plugin/DialogWidget.h"

#include "IDropDownListController.h"
#include "ITriStateControlData.h"

namespace linewright {

int32 SelectedItem(const IPMUnknown* dialog, WidgetID popUp) {
    const DialogWidget<IDropDownListController> list(dialog, popUp);
    return list ? list->GetSelected() : -1;
}

void SelectItem(const IPMUnknown* dialog, WidgetID popUp, int32 item) {
    const DialogWidget<IDropDownListController> list(dialog, popUp);
    if (list) list->Select(item, kTrue, kFalse);
}

bool IsChecked(const IPMUnknown* dialog, WidgetID checkBox) {
    const DialogWidget<ITriStateControlData> box(dialog, checkBox);
    return box && box->GetState() == ITriStateControlData::kSelected;
}

void SetChecked(const IPMUnknown* dialog, WidgetID checkBox, bool isChecked) {
    const DialogWidget<ITriStateControlData> box(dialog, checkBox);
    if (!box) return;
    box->SetState(isChecked ? ITriStateControlData::kSelected : ITriStateControlData::kUnselected,
                  kTrue, kFalse);
}

void EnableWidget(const IPMUnknown* dialog, WidgetID widget, bool enable) {
    const DialogWidget<IControlView> view(dialog, widget);
    if (!view) return;
    if (enable) {
        view->Enable();
    } else {
        view->Disable();
    }
}

}  // namespace linewright
