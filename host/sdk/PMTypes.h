#pragma once

#include "BaseType.h"

// Identifiers of the object model. A plug-in's own begin with its plug-in id, 0x122100 here.

typedef uint32 ClassID;
typedef uint32 PMIID;
typedef uint32 ImplementationID;
typedef uint32 PluginID;
typedef uint32 ActionID;
typedef uint32 WidgetID;

constexpr PMIID IID_IPMUNKNOWN = 0;
