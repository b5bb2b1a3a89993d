#pragma once

#include "IPMUnknown.h"

/** A widget as it is seen. */
class IControlView : public IPMUnknown {
  public:
    enum { kDefaultIID = 0x0F0E };

    virtual WidgetID GetWidgetID() const = 0;
    virtual void Enable() = 0;
    virtual void Disable() = 0;
};

const PMIID IID_ICONTROLVIEW(IControlView::kDefaultIID);
