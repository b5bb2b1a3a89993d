#pragma once

#include "IPMUnknown.h"
#include "PMString.h"

constexpr PMIID IID_ISTRINGLISTCONTROLDATA = 0x0F12;

/** The items of a list. */
class IStringListControlData : public IPMUnknown {
  public:
    enum { kDefaultIID = IID_ISTRINGLISTCONTROLDATA };
    enum Position { kEnd = -2 };

    /** Removes all items, and with them the selection. */
    virtual void Clear() = 0;
    /** Adds an item, enabled, before the one at `index` or at the end. */
    virtual void AddString(const PMString& text, int32 index = kEnd) = 0;
    virtual int32 Length() const = 0;
    /** The text of an item; empty where there is none. */
    virtual PMString GetString(int32 index) const = 0;
};
