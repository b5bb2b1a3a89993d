#include "core/PreferencesRecord.h"

namespace linewright {

constinit LinewrightPrefsRecord preferences = kDefaultPreferences;

}  // namespace linewright
