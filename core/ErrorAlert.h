#pragma once

#include "PMString.h"
#include "core/DataBlock.h"

namespace linewright {

/** Tells the user that an encoding failed. The three known failures name the type and the hint and
 *  are always seen; any other shows the data as the encoder left it, and only while the host's
 *  alerts are on. `hint` may be nullptr. */
void ReportFailure(int16 status, uint16 typeCode, DataBlock data, const PMString* hint);

/** Shows an error alert even while the host's alerts are switched off. */
void ShowErrorAlertForced(const PMString& message);

}  // namespace linewright
