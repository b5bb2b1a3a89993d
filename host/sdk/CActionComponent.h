#pragma once

#include "CPMUnknown.h"
#include "IActionComponent.h"

/** Base of an action component: does nothing of its own. */
class CActionComponent : public CPMUnknown<IActionComponent> {
  public:
    using CPMUnknown::CPMUnknown;

    void DoAction(IActiveContext* /*context*/, ActionID /*actionID*/, GSysPoint /*mousePoint*/,
                  IPMUnknown* /*widget*/) override {}
};
