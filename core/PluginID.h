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

// View resources
constexpr int32 kPrefsDialogResourceID = 250;
constexpr int32 kUtilityDialogResourceID = 251;

}  // namespace linewright
