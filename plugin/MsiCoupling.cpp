#include "plugin/MsiCoupling.h"

#include "IDropDownListController.h"
#include "core/PluginID.h"
#include "plugin/DialogWidget.h"

namespace linewright {

void CoupleMsiChecks(LinewrightPrefsRecord& record, const IPMUnknown* dialog) {
    constexpr int16 kNone = 0;
    constexpr int16 kModulo10 = 1;
    constexpr int16 kModulo11 = 2;

    const bool hasFirst = record.msiFirstCheck == kModulo10 || record.msiFirstCheck == kModulo11;
    if (!hasFirst && record.msiFirstCheck != kNone) return;

    // A second modulo 11 check digit cannot follow a first one of either kind.
    if (!hasFirst || record.msiSecondCheck == kModulo11) record.msiSecondCheck = kNone;
    SelectItem(dialog, kMsiSecondCheckWidgetID, record.msiSecondCheck);
    const DialogWidget<IDropDownListController> second(dialog, kMsiSecondCheckWidgetID);
    if (second) second->EnableItem(kModulo11, hasFirst ? kFalse : kTrue);
    EnableWidget(dialog, kMsiSecondCheckWidgetID, hasFirst);
}

}  // namespace linewright
