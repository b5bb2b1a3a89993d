#pragma once

#include "IPMUnknown.h"
#include "PMString.h"

constexpr PMIID IID_ITEXTCONTROLDATA = 0x0F0F;

/** The text of a widget. */
class ITextControlData : public IPMUnknown {
  public:
    enum { kDefaultIID = IID_ITEXTCONTROLDATA };

    virtual const PMString& GetString() const = 0;
    /** A key is translated. */
    virtual void SetString(const PMString& text, bool16 invalidate = kTrue,
                           bool16 notifyOfChange = kTrue) = 0;
};
