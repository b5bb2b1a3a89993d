#pragma once

#include "CObserver.h"
#include "IPanelControlData.h"

/** Base of a dialog's observer: hears of OK, which has the fields validated and applied and closes
 *  a modal dialog, and of Cancel, which closes any. */
class PUBLIC_DECL CDialogObserver : public CObserver {
  public:
    explicit CDialogObserver(IPMUnknown* boss);
    ~CDialogObserver() override;

    void AutoAttach() override;
    void AutoDetach() override;
    void Update(const ClassID& change, ISubject* subject, const PMIID& protocol,
                void* changedBy) override;

  protected:
    /** Attaches to a widget's changes of a protocol; nothing when there is no such widget. */
    void AttachToWidget(const WidgetID& widgetID, const PMIID& protocol,
                        const IPanelControlData* panel);
    void DetachFromWidget(const WidgetID& widgetID, const PMIID& protocol,
                          const IPanelControlData* panel);
};
