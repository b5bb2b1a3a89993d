#include "plugin/LWRUtilityDialogController.h"

#include "IStringListControlData.h"
#include "core/PluginID.h"
#include "core/PreferencesRecord.h"
#include "plugin/DialogWidget.h"
#include "plugin/UtilityDialogType.h"

namespace linewright {

void LWRUtilityDialogController::InitializeDialogFields(IActiveContext* context) {
    CDialogController::InitializeDialogFields(context);
    const DialogWidget<IStringListControlData> types(this, kTypeWidgetID);
    if (!types) return;
    types->Clear();
    for (const BarcodeTypeEntry& entry : registry)
        if (entry.code != 0) types->AddString(entry.displayText);

    const int32 stored = preferences.lastTypeIndex;
    SelectItem(this, kTypeWidgetID, stored >= 0 && stored < types->Length() ? stored : 0);
    ShowSelectedType(this);

    PMString data;
    data.SetString(preferences.lastData.text, preferences.lastData.length);
    SetTextControlData(kDataWidgetID, data);
}

}  // namespace linewright
