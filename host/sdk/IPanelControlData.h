#pragma once

#include "IPMUnknown.h"

class IControlView;

constexpr PMIID IID_IPANELCONTROLDATA = 0x0F0D;

/** The widgets of a panel, such as a dialog. */
class IPanelControlData : public IPMUnknown {
  public:
    enum { kDefaultIID = IID_IPANELCONTROLDATA };

    /** The widget of an id, owned by the panel and not counted; nullptr when there is none. */
    virtual IControlView* FindWidget(const WidgetID& widgetID) const = 0;
};
