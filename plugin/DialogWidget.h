#pragma once

#include "IControlView.h"
#include "IPanelControlData.h"
#include "InterfacePtr.h"

namespace linewright {

/** An interface of one widget of a dialog, reached from any interface of the dialog; none when
 *  there is no such widget. */
template <class IFace>
class DialogWidget : public InterfacePtr<IFace> {
  public:
    DialogWidget(const IPMUnknown* dialog, WidgetID widgetID)
        : InterfacePtr<IFace>(Find(dialog, widgetID), UseDefaultIID()) {}

  private:
    static IControlView* Find(const IPMUnknown* dialog, WidgetID widgetID) {
        const InterfacePtr<IPanelControlData> panel(dialog, UseDefaultIID());
        return panel ? panel->FindWidget(widgetID) : nullptr;
    }
};

/** The index of the item that a pop-up shows; -1 for none. */
int32 SelectedItem(const IPMUnknown* dialog, WidgetID popUp);
/** Shows an item without telling observers; none where there is no such item. */
void SelectItem(const IPMUnknown* dialog, WidgetID popUp, int32 item);
/** Whether a check box is on. */
bool IsChecked(const IPMUnknown* dialog, WidgetID checkBox);
void SetChecked(const IPMUnknown* dialog, WidgetID checkBox, bool isChecked);
void EnableWidget(const IPMUnknown* dialog, WidgetID widget, bool enable);

}  // namespace linewright
