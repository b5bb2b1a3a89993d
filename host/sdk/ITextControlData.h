#pragma once

#include "IPMUnknown.h"
#include "PMString.h"

/** The text of a widget. */
class ITextControlData : public IPMUnknown {
  public:
    enum { kDefaultIID = 0x0F0F };

    virtual const PMString& GetString() const = 0;
    /** A key is translated. */
    virtual void SetString(const PMString& text, bool16 invalidate = kTrue,
                           bool16 notifyOfChange = kTrue) = 0;
};

const PMIID IID_ITEXTCONTROLDATA(ITextControlData::kDefaultIID);
