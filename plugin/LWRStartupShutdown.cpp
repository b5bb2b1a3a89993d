#include "plugin/LWRStartupShutdown.h"

#include "core/BarcodeTypeRegistry.h"
#include "plugin/PreferencesFile.h"

namespace linewright {

ErrorCode LWRStartupShutdown::Startup() {
    ClearLocalConfig();
    DetectLocalConfig();
    LoadPreferences();
    SavePreferences();
    BuildTypeRegistry();
    return kSuccess;
}

void LWRStartupShutdown::Shutdown() {}

}  // namespace linewright
