#include "cli/LoadedPreferences.h"

#include "plugin/PreferencesFile.h"

namespace linewright {

LinewrightPrefsRecord& LoadedPreferences() {
    ClearLocalConfig();
    DetectLocalConfig();
    LoadPreferences();
    return preferences;
}

}  // namespace linewright
