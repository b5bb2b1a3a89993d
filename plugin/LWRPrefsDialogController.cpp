#include "plugin/LWRPrefsDialogController.h"

#include <new>

#include "core/HostMemory.h"
#include "core/PluginID.h"
#include "plugin/DialogWidget.h"
#include "plugin/MsiCoupling.h"
#include "plugin/PreferencesFile.h"

namespace linewright {

namespace {

/** Reads a pop-up; a value that it cannot show stays as long as the user chooses none. */
template <class Value>
void ReadPopUp(const IPMUnknown* dialog, WidgetID popUp, Value& value) {
    const int32 item = SelectedItem(dialog, popUp);
    if (item >= 0) value = static_cast<Value>(item);
}

uint8 ReadCheckBox(const IPMUnknown* dialog, WidgetID checkBox) {
    return IsChecked(dialog, checkBox) ? 1 : 0;
}

}  // namespace

LWRPrefsDialogController::LWRPrefsDialogController(IPMUnknown* boss) : CDialogController(boss) {
    uint8* const block = AllocBlock(sizeof *scratch);
    scratch = block ? new (block) LinewrightPrefsRecord(preferences) : nullptr;
}

LWRPrefsDialogController::~LWRPrefsDialogController() {
    FreeBlock(scratch);
}

void LWRPrefsDialogController::InitializeDialogFields(IActiveContext* context) {
    CDialogController::InitializeDialogFields(context);
    if (!scratch) return;
    *scratch = preferences;
    SelectItem(this, kCode39CheckModeWidgetID, scratch->code39CheckMode);
    SetChecked(this, kCode39UseAsteriskWidgetID, scratch->code39UseAsterisk > 0);
    SetChecked(this, kI2of5CheckDigitWidgetID, scratch->i2of5CheckDigit > 0);
    SetChecked(this, kShowErrorAlertsWidgetID, scratch->showErrorAlerts > 0);
    SelectItem(this, kMsiFirstCheckWidgetID, scratch->msiFirstCheck);
    SelectItem(this, kMsiSecondCheckWidgetID, scratch->msiSecondCheck);
    CoupleMsiChecks(*scratch, this);
}

void LWRPrefsDialogController::ApplyDialogFields(IActiveContext* context,
                                                 const WidgetID& widgetID) {
    CDialogController::ApplyDialogFields(context, widgetID);
    if (!scratch) return;
    ReadPopUp(this, kCode39CheckModeWidgetID, scratch->code39CheckMode);
    scratch->code39UseAsterisk = ReadCheckBox(this, kCode39UseAsteriskWidgetID);
    scratch->i2of5CheckDigit = ReadCheckBox(this, kI2of5CheckDigitWidgetID);
    scratch->showErrorAlerts = ReadCheckBox(this, kShowErrorAlertsWidgetID);
    ReadPopUp(this, kMsiFirstCheckWidgetID, scratch->msiFirstCheck);
    ReadPopUp(this, kMsiSecondCheckWidgetID, scratch->msiSecondCheck);
    preferences = *scratch;
    SavePreferences();
}

}  // namespace linewright
