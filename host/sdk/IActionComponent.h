#pragma once

#include "IPMUnknown.h"

class IActiveContext;

constexpr PMIID IID_IACTIONCOMPONENT = 0x0F09;

/** A point on the screen. */
struct GSysPoint {
    int32 x = 0;
    int32 y = 0;
};

/** Carries out the actions behind menu items. Main thread only. */
class IActionComponent : public IPMUnknown {
  public:
    enum { kDefaultIID = IID_IACTIONCOMPONENT };

    /** Does what an action stands for; `widget` is where it came from, or nullptr. */
    virtual void DoAction(IActiveContext* context, ActionID actionID, GSysPoint mousePoint,
                          IPMUnknown* widget) = 0;
};
