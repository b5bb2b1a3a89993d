#include "CDialogController.h"

#include "CoreResTypes.h"
#include "IControlView.h"
#include "IPanelControlData.h"
#include "ITextControlData.h"

namespace {

/** An interface of a widget of the dialog; none when there is no such widget. */
template <class IFace>
class WidgetData : public InterfacePtr<IFace> {
  public:
    WidgetData(const IPMUnknown* dialog, const WidgetID& widgetID)
        : InterfacePtr<IFace>(Find(dialog, widgetID), UseDefaultIID()) {}

  private:
    static IControlView* Find(const IPMUnknown* dialog, const WidgetID& widgetID) {
        const InterfacePtr<IPanelControlData> panel(dialog, UseDefaultIID());
        return panel ? panel->FindWidget(widgetID) : nullptr;
    }
};

}  // namespace

CDialogController::CDialogController(IPMUnknown* boss) : CPMUnknown(boss) {}

CDialogController::~CDialogController() = default;

void CDialogController::InitializeDialogFields(IActiveContext*) {}

WidgetID CDialogController::ValidateDialogFields(IActiveContext*) {
    return kDefaultWidgetId;
}

void CDialogController::ApplyDialogFields(IActiveContext*, const WidgetID&) {}

void CDialogController::UserCancelled() {}

PMString CDialogController::GetTextControlData(const WidgetID& widgetID) const {
    const WidgetData<ITextControlData> text(this, widgetID);
    return text ? text->GetString() : PMString();
}

void CDialogController::SetTextControlData(const WidgetID& widgetID, const PMString& text) {
    const WidgetData<ITextControlData> data(this, widgetID);
    if (data) data->SetString(text);
}

ITriStateControlData::TriState CDialogController::GetTriStateControlData(
    const WidgetID& widgetID) const {
    const WidgetData<ITriStateControlData> data(this, widgetID);
    return data ? data->GetState() : ITriStateControlData::kUnknown;
}

void CDialogController::SetTriStateControlData(const WidgetID& widgetID,
                                               ITriStateControlData::TriState state) {
    const WidgetData<ITriStateControlData> data(this, widgetID);
    if (data) data->SetState(state);
}
