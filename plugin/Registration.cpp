#include "CPMUnknown.h"
#include "core/ORTALinewright.h"
#include "core/PluginID.h"
#include "plugin/LWRAppPrefs.h"
#include "plugin/LWRStartupShutdown.h"

namespace linewright {

// The host sees the implementations in this order.
CREATE_PERSIST_PMINTERFACE(LWRAppPrefs, kLWRAppPrefsImpl);
CREATE_PMINTERFACE(LWRStartupShutdown, kLWRStartupShutdownImpl);
CREATE_PMINTERFACE(ORTALinewright, kORTALinewrightImpl);

}  // namespace linewright
