#pragma once

#include "CPMUnknown.h"
#include "IDialogController.h"

/** Base of a dialog's controller: changes no field, finds all of them valid. */
class PUBLIC_DECL CDialogController : public CPMUnknown<IDialogController> {
  public:
    explicit CDialogController(IPMUnknown* boss);
    ~CDialogController() override;

    void InitializeDialogFields(IActiveContext* context) override;
    WidgetID ValidateDialogFields(IActiveContext* context) override;
    void ApplyDialogFields(IActiveContext* context, const WidgetID& widgetID) override;
    void UserCancelled() override;

    PMString GetTextControlData(const WidgetID& widgetID) const override;
    void SetTextControlData(const WidgetID& widgetID, const PMString& text) override;
    ITriStateControlData::TriState GetTriStateControlData(const WidgetID& widgetID) const override;
    void SetTriStateControlData(const WidgetID& widgetID,
                                ITriStateControlData::TriState state) override;
};
