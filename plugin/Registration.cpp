#include "CPMUnknown.h"
#include "core/ORTALinewright.h"
#include "core/PluginID.h"
#include "plugin/LWRActionComponent.h"
#include "plugin/LWRAppPrefs.h"
#include "plugin/LWRPrefsDialogController.h"
#include "plugin/LWRPrefsDialogObserver.h"
#include "plugin/LWRStartupShutdown.h"
#include "plugin/LWRUtilityDialogController.h"
#include "plugin/LWRUtilityDialogObserver.h"

namespace linewright {

// The host sees the implementations in this order.
CREATE_PMINTERFACE(LWRActionComponent, kLWRActionComponentImpl);
CREATE_PMINTERFACE(LWRPrefsDialogController, kLWRPrefsDialogControllerImpl);
CREATE_PMINTERFACE(LWRPrefsDialogObserver, kLWRPrefsDialogObserverImpl);
CREATE_PMINTERFACE(LWRUtilityDialogController, kLWRUtilityDialogControllerImpl);
CREATE_PMINTERFACE(LWRUtilityDialogObserver, kLWRUtilityDialogObserverImpl);
CREATE_PERSIST_PMINTERFACE(LWRAppPrefs, kLWRAppPrefsImpl);
CREATE_PMINTERFACE(LWRStartupShutdown, kLWRStartupShutdownImpl);
CREATE_PMINTERFACE(ORTALinewright, kORTALinewrightImpl);

}  // namespace linewright
