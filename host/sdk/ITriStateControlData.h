#pragma once

#include "IPMUnknown.h"

constexpr PMIID IID_ITRISTATECONTROLDATA = 0x0F10;

/** The state of a check box. */
class ITriStateControlData : public IPMUnknown {
  public:
    enum { kDefaultIID = IID_ITRISTATECONTROLDATA };
    enum TriState { kUnselected = 0, kUnknown = 1, kSelected = 2 };

    virtual TriState GetState() const = 0;
    virtual void SetState(TriState state, bool16 invalidate = kTrue,
                          bool16 notifyOfChange = kTrue) = 0;
};
