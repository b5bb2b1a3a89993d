#pragma once

#include "IPMUnknown.h"
#include "ITriStateControlData.h"
#include "PMString.h"

class IActiveContext;

constexpr PMIID IID_IDIALOGCONTROLLER = 0x0F0A;

/** Fills the fields of a dialog and takes over what they hold. Main thread only. */
class IDialogController : public IPMUnknown {
  public:
    enum { kDefaultIID = IID_IDIALOGCONTROLLER };

    /** Called when the dialog opens, before it is shown and observed. */
    virtual void InitializeDialogFields(IActiveContext* context) = 0;
    /** The widget that holds something wrong, or kDefaultWidgetId. */
    virtual WidgetID ValidateDialogFields(IActiveContext* context) = 0;
    /** Called when the fields were found valid after a press of `widgetID`. */
    virtual void ApplyDialogFields(IActiveContext* context, const WidgetID& widgetID) = 0;
    virtual void UserCancelled() = 0;

    // Widgets by their ids. Without such a widget: empty, unknown, no effect.
    virtual PMString GetTextControlData(const WidgetID& widgetID) const = 0;
    virtual void SetTextControlData(const WidgetID& widgetID, const PMString& text) = 0;
    virtual ITriStateControlData::TriState GetTriStateControlData(
        const WidgetID& widgetID) const = 0;
    virtual void SetTriStateControlData(const WidgetID& widgetID,
                                        ITriStateControlData::TriState state) = 0;
};
