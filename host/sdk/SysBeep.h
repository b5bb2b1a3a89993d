#pragma once

#include "BaseType.h"

/** Sounds the system's default beep. */
PUBLIC_DECL void SysBeep();
