#pragma once

#include "IPMUnknown.h"

/** A new boss object of a class, by one of its interfaces; of a persistent class the one object
 * that the application's database keeps. The caller owns the reference; nullptr when there is no
 * such class or it has no such interface. */
PUBLIC_DECL IPMUnknown* CreateObject(ClassID classID, PMIID interfaceID);
