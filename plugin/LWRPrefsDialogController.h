#pragma once

#include "CDialogController.h"
#include "core/PreferencesRecord.h"

namespace linewright {

/** Edits a copy of the preferences; OK makes it the live record and saves that. */
class LWRPrefsDialogController : public CDialogController {
  public:
    explicit LWRPrefsDialogController(IPMUnknown* boss);
    ~LWRPrefsDialogController() override;

    void InitializeDialogFields(IActiveContext* context) override;
    void ApplyDialogFields(IActiveContext* context, const WidgetID& widgetID) override;

  private:
    /** In host memory; nullptr, and then the dialog changes nothing, when there was none. */
    LinewrightPrefsRecord* scratch;
};

}  // namespace linewright
