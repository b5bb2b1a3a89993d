#include "plugin/UtilityDialogType.h"

#include "IStringListControlData.h"
#include "ITextControlData.h"
#include "core/PluginID.h"
#include "plugin/DialogWidget.h"
#include "plugin/TypeDescription.h"

namespace linewright {

const BarcodeTypeEntry* SelectedType(const IPMUnknown* dialog) {
    const DialogWidget<IStringListControlData> list(dialog, kTypeWidgetID);
    if (!list) return nullptr;
    return FindTypeByDisplayText(list->GetString(SelectedItem(dialog, kTypeWidgetID)));
}

void ShowSelectedType(const IPMUnknown* dialog) {
    static const BarcodeTypeEntry kNoType;
    const BarcodeTypeEntry* const found = SelectedType(dialog);
    const BarcodeTypeEntry& type = found ? *found : kNoType;

    const DialogWidget<ITextControlData> description(dialog, kDescriptionWidgetID);
    if (description) description->SetString(DescribeType(type.code));

    EnableWidget(dialog, kCheckDigitWidgetID, type.optionFlag1 > 0);
    SetChecked(dialog, kCheckDigitWidgetID, type.optionFlag2 > 0);
    EnableWidget(dialog, kRatioLabelWidgetID, type.optionFlag3 > 0);
    EnableWidget(dialog, kRatioWidgetID, type.optionFlag3 > 0);
    SelectItem(dialog, kRatioWidgetID, 0);
}

}  // namespace linewright
