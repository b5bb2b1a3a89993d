#pragma once

#include "BaseType.h"
#include "IDFile.h"

namespace linewright {

// The preferences file, `Corvane/Config/QVT Linewright.prf` below the host's roaming folder, or
// below `Plug-Ins` of the application folder where an installation keeps its own. Its content is
// LinewrightPrefsRecord. Main thread only.

/** Forgets where the preferences live; the roaming folder until DetectLocalConfig. */
void ClearLocalConfig();
/** Decides for the rest of the run: beside the application if it has the folder, else roaming. */
void DetectLocalConfig();

/** Sets `file` to the place of the preferences file, making its folders. False when the host knows
 *  no folder for it. */
bool LocatePreferencesFile(IDFile& file);

/** Fills the live record from the file. A missing or empty file gives the defaults, one with
 * another signature or version the defaults and a warning; both are written back. True if the
 * file's own values were taken. */
bool LoadPreferences();
/** Writes the live record to the file, whole or not at all. False on a failure. */
bool SavePreferences();

}  // namespace linewright
