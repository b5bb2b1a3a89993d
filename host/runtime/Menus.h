#pragma once

#include "PMString.h"
#include "PMTypes.h"

namespace host {

/** One entry of the plug-in's menus. Texts are in the current locale, "&" before a mnemonic. */
struct MenuItem {
    PMString menu;
    PMString text;
    ActionID action = 0;
};

// The menus of the running plug-in, in their order. Main thread only.

PUBLIC_DECL int32 CountMenuItems();
/** An empty item, of action 0, where there is none. */
PUBLIC_DECL MenuItem GetMenuItem(int32 index);
/** Has the plug-in do what a menu item stands for. Returns when that is done; a modal dialog is
 *  closed again by then. False when no plug-in has an action component. */
PUBLIC_DECL bool DoAction(ActionID action);

}  // namespace host
