#pragma once

#include "BaseType.h"

// Identifiers of the object model. A plug-in's own begin with its plug-in id, 0x122100 here.

using ClassID = uint32;
using PMIID = uint32;
using ImplementationID = uint32;
using PluginID = uint32;
using ActionID = uint32;
using WidgetID = uint32;

constexpr PMIID IID_IPMUNKNOWN = 0;
