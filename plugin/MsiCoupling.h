#pragma once

#include "IPMUnknown.h"
#include "core/PreferencesRecord.h"

namespace linewright {

/** Keeps the second MSI Plessey check digit to what can follow the first one, in a preferences
 *  record and in the two pop-ups of the preferences dialog. */
void CoupleMsiChecks(LinewrightPrefsRecord& record, const IPMUnknown* dialog);

}  // namespace linewright
