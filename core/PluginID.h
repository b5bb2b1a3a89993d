#pragma once

#include "PMTypes.h"

namespace linewright {

constexpr PluginID kLinewrightPluginID = 0x122100;

// Classes
constexpr ClassID kLinewrightActionComponentBoss = kLinewrightPluginID + 0x00;
constexpr ClassID kLinewrightPrefsDialogBoss = kLinewrightPluginID + 0x01;
constexpr ClassID kLinewrightUtilityDialogBoss = kLinewrightPluginID + 0x02;
constexpr ClassID kLinewrightStartupShutdownBoss = kLinewrightPluginID + 0x03;
constexpr ClassID kLinewrightServiceBoss = kLinewrightPluginID + 0x04;
constexpr ClassID kLinewrightAppPrefsBoss = kLinewrightPluginID + 0x05;

// Interfaces
constexpr PMIID IID_IORTALINEWRIGHT = kLinewrightPluginID + 0x00;
constexpr PMIID IID_ILWRAPPPREFS = kLinewrightPluginID + 0x01;

// Implementations
constexpr ImplementationID kLWRActionComponentImpl = kLinewrightPluginID + 0x00;
constexpr ImplementationID kLWRPrefsDialogControllerImpl = kLinewrightPluginID + 0x01;
constexpr ImplementationID kLWRPrefsDialogObserverImpl = kLinewrightPluginID + 0x02;
constexpr ImplementationID kLWRUtilityDialogControllerImpl = kLinewrightPluginID + 0x03;
constexpr ImplementationID kLWRUtilityDialogObserverImpl = kLinewrightPluginID + 0x04;
constexpr ImplementationID kORTALinewrightImpl = kLinewrightPluginID + 0x05;
constexpr ImplementationID kLWRAppPrefsImpl = kLinewrightPluginID + 0x06;
constexpr ImplementationID kLWRStartupShutdownImpl = kLinewrightPluginID + 0x07;

// Actions
constexpr ActionID kPreferencesActionID = kLinewrightPluginID + 0x04;
constexpr ActionID kUtilityActionID = kLinewrightPluginID + 0x05;

// Widgets of the preferences dialog
constexpr WidgetID kShowErrorAlertsWidgetID = kLinewrightPluginID + 0x02;
constexpr WidgetID kCode39CheckModeWidgetID = kLinewrightPluginID + 0x07;
constexpr WidgetID kCode39UseAsteriskWidgetID = kLinewrightPluginID + 0x08;
constexpr WidgetID kI2of5CheckDigitWidgetID = kLinewrightPluginID + 0x0B;
constexpr WidgetID kMsiFirstCheckWidgetID = kLinewrightPluginID + 0x0F;
constexpr WidgetID kMsiSecondCheckWidgetID = kLinewrightPluginID + 0x11;

// Widgets of the utility dialog
constexpr WidgetID kSpareButtonWidgetID = kLinewrightPluginID + 0x15;
constexpr WidgetID kPreferencesButtonWidgetID = kLinewrightPluginID + 0x16;
constexpr WidgetID kDataWidgetID = kLinewrightPluginID + 0x19;
constexpr WidgetID kResultWidgetID = kLinewrightPluginID + 0x1B;
constexpr WidgetID kTypeWidgetID = kLinewrightPluginID + 0x1D;
constexpr WidgetID kDescriptionWidgetID = kLinewrightPluginID + 0x1E;
constexpr WidgetID kCheckDigitWidgetID = kLinewrightPluginID + 0x21;
constexpr WidgetID kRatioLabelWidgetID = kLinewrightPluginID + 0x22;
constexpr WidgetID kRatioWidgetID = kLinewrightPluginID + 0x23;

// View resources
constexpr int32 kPrefsDialogResourceID = 250;
constexpr int32 kUtilityDialogResourceID = 251;

}  // namespace linewright
