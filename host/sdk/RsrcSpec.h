#pragma once

#include "LocaleSetting.h"
#include "PMTypes.h"

/** Names one resource of a plug-in: locale, plug-in, type (such as 'VIEW') and number. */
struct RsrcSpec {
    PMLocaleId locale;
    PluginID plugin;
    RsrcType type;
    RsrcID id;
};
