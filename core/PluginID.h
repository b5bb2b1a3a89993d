#pragma once

#include "PMTypes.h"

namespace linewright {

/** Every id of the plug-in is this and a small number. A host's types of ids are made from numbers,
 *  but perhaps not by the compiler: so the ids are not constexpr. */
constexpr uint32 kLinewrightPrefix = 0x122100;

const PluginID kLinewrightPluginID(kLinewrightPrefix);

// Classes
const ClassID kLinewrightActionComponentBoss(kLinewrightPrefix + 0x00);
const ClassID kLinewrightPrefsDialogBoss(kLinewrightPrefix + 0x01);
const ClassID kLinewrightUtilityDialogBoss(kLinewrightPrefix + 0x02);
const ClassID kLinewrightStartupShutdownBoss(kLinewrightPrefix + 0x03);
const ClassID kLinewrightServiceBoss(kLinewrightPrefix + 0x04);
const ClassID kLinewrightAppPrefsBoss(kLinewrightPrefix + 0x05);

// Interfaces, whose kDefaultIID is a number
constexpr uint32 kIORTALinewrightNumber = kLinewrightPrefix + 0x00;
constexpr uint32 kILWRAppPrefsNumber = kLinewrightPrefix + 0x01;
const PMIID IID_IORTALINEWRIGHT(kIORTALinewrightNumber);
const PMIID IID_ILWRAPPPREFS(kILWRAppPrefsNumber);

// Implementations
const ImplementationID kLWRActionComponentImpl(kLinewrightPrefix + 0x00);
const ImplementationID kLWRPrefsDialogControllerImpl(kLinewrightPrefix + 0x01);
const ImplementationID kLWRPrefsDialogObserverImpl(kLinewrightPrefix + 0x02);
const ImplementationID kLWRUtilityDialogControllerImpl(kLinewrightPrefix + 0x03);
const ImplementationID kLWRUtilityDialogObserverImpl(kLinewrightPrefix + 0x04);
const ImplementationID kORTALinewrightImpl(kLinewrightPrefix + 0x05);
const ImplementationID kLWRAppPrefsImpl(kLinewrightPrefix + 0x06);
const ImplementationID kLWRStartupShutdownImpl(kLinewrightPrefix + 0x07);

// Actions
const ActionID kPreferencesActionID(kLinewrightPrefix + 0x04);
const ActionID kUtilityActionID(kLinewrightPrefix + 0x05);

// Widgets of the preferences dialog
const WidgetID kShowErrorAlertsWidgetID(kLinewrightPrefix + 0x02);
const WidgetID kCode39CheckModeWidgetID(kLinewrightPrefix + 0x07);
const WidgetID kCode39UseAsteriskWidgetID(kLinewrightPrefix + 0x08);
const WidgetID kI2of5CheckDigitWidgetID(kLinewrightPrefix + 0x0B);
const WidgetID kMsiFirstCheckWidgetID(kLinewrightPrefix + 0x0F);
const WidgetID kMsiSecondCheckWidgetID(kLinewrightPrefix + 0x11);

// Widgets of the utility dialog
const WidgetID kSpareButtonWidgetID(kLinewrightPrefix + 0x15);
const WidgetID kPreferencesButtonWidgetID(kLinewrightPrefix + 0x16);
const WidgetID kDataWidgetID(kLinewrightPrefix + 0x19);
const WidgetID kResultWidgetID(kLinewrightPrefix + 0x1B);
const WidgetID kTypeWidgetID(kLinewrightPrefix + 0x1D);
const WidgetID kDescriptionWidgetID(kLinewrightPrefix + 0x1E);
const WidgetID kCheckDigitWidgetID(kLinewrightPrefix + 0x21);
const WidgetID kRatioLabelWidgetID(kLinewrightPrefix + 0x22);
const WidgetID kRatioWidgetID(kLinewrightPrefix + 0x23);

// View resources
constexpr int32 kPrefsDialogResourceID = 250;
constexpr int32 kUtilityDialogResourceID = 251;

}  // namespace linewright
