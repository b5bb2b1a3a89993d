#pragma once

#include "PMString.h"

/** Messages to the user. Each is translated and shown, unless alerts are switched off. Main thread
 *  only. The result is the number of the button pressed, 1 for the only one. */
class PUBLIC_DECL CAlert {
  public:
    static int16 InformationAlert(const PMString& message);
    static int16 WarningAlert(const PMString& message);
    static int16 ErrorAlert(const PMString& message);

    static bool16 GetShowAlerts();
    static void SetShowAlerts(bool16 show);
};
