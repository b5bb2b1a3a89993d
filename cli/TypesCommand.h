#pragma once

#include "cli/Console.h"
#include "requests/Service.h"

namespace linewright {

/** Lists the types that the plug-in knows, as a table or as a JSON array. */
ExitStatus RunTypes(Service& service, bool isJson, Console& console);

}  // namespace linewright
