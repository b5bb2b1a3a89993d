#pragma once

#include "IPMUnknown.h"

constexpr PMIID IID_ICONTROLVIEW = 0x0F0E;

/** A widget as it is seen. */
class IControlView : public IPMUnknown {
  public:
    enum { kDefaultIID = IID_ICONTROLVIEW };

    virtual WidgetID GetWidgetID() const = 0;
    virtual void Enable() = 0;
    virtual void Disable() = 0;
};
