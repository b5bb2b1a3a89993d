#pragma once

#include "cli/Console.h"
#include "requests/Service.h"

namespace linewright {

/** The raw door to the plug-in: a JSON object a line in, one a line out, in order. Ends with
 *  kTrouble when a line was no request. */
ExitStatus RunStream(Service& service, Console& console);

}  // namespace linewright
