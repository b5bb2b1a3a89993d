#pragma once

#include "BaseType.h"

/** A user-interface locale, as the number of its entry in the host's list. */
typedef int32 PMLocaleId;

/** The locale that the user interface runs in; it does not change while the host runs. */
class PUBLIC_DECL WLocaleSetting {
  public:
    static PMLocaleId GetLocale();
};
