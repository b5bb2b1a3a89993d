#pragma once

#include "IDialog.h"

namespace linewright {

/** Opens a dialog of the plug-in's view resources. Returns 1, or 0 when there is no session,
 *  application or dialog manager, or no such dialog. */
int32 OpenPluginDialog(int32 resourceID, IDialog::DialogType kind);

}  // namespace linewright
