#pragma once

#include "BaseType.h"

namespace host {

class ShownDialog;

enum class AlertKind { kInformation, kWarning, kError };

/** Who shows things: a console, a recorder in tests, a window. Called on the main thread. */
class FrontEnd {
  public:
    /** Shows one message, UTF-8 text in the current locale; returns when it was acknowledged. */
    virtual void ShowAlert(AlertKind kind, const char* text) = 0;
    virtual void Beep() = 0;
    /** Shows a dialog that has just been opened. For a modal one, returns when it was closed; one
     *  that is open still is then closed as by its close box. A modeless one stays open until its
     *  listener hears otherwise. Without a screen nobody answers. */
    virtual void ShowDialog(ShownDialog& dialog) { static_cast<void>(dialog); }

  protected:
    ~FrontEnd() = default;
};

}  // namespace host
