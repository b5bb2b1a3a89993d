#pragma once

#include "BaseType.h"

namespace host {

enum class AlertKind { kInformation, kWarning, kError };

/** Who shows things: a console, a recorder in tests, a window. Called on the main thread. */
class FrontEnd {
  public:
    /** Shows one message, UTF-8 text in the current locale; returns when it was acknowledged. */
    virtual void ShowAlert(AlertKind kind, const char* text) = 0;
    virtual void Beep() = 0;

  protected:
    ~FrontEnd() = default;
};

}  // namespace host
