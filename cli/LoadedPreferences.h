#pragma once

#include "core/PreferencesRecord.h"

namespace linewright {

/** This program's own copy of the preferences record, read anew from the file that the plug-in
 *  reads. */
LinewrightPrefsRecord& LoadedPreferences();

}  // namespace linewright
