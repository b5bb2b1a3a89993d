#pragma once

#include "BaseType.h"

/** A user-interface locale, as the number of its entry in the host's list. */
using PMLocaleId = int32;

/** The locale that the user interface runs in; it does not change while the host runs. */
class PUBLIC_DECL WLocaleSetting {
  public:
    static PMLocaleId GetLocale();
};
