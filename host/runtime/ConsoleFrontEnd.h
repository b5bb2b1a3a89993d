#pragma once

#include "host/runtime/FrontEnd.h"

namespace host {

/** Shows alerts as lines on standard error, and beeps there if it is a terminal. */
class ConsoleFrontEnd final : public FrontEnd {
  public:
    void ShowAlert(AlertKind kind, const char* text) override;
    void Beep() override;
};

}  // namespace host
