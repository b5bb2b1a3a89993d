#pragma once

#include "PMString.h"

namespace linewright {

/** Fills the markers "^0" to "^3" of a translated message. Each replacement that is given takes the
 *  place of the lowest-numbered marker found anywhere in the message as it then stands, whatever
 *  its number, so a marker inside an earlier replacement can be filled too; one for which no marker
 *  is left is dropped. */
void ReplaceMarkers(PMString& message, const PMString* first, const PMString* second = nullptr,
                    const PMString* third = nullptr, const PMString* fourth = nullptr);

}  // namespace linewright
