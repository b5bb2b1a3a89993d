#pragma once

#include "IPMUnknown.h"

constexpr PMIID IID_IDROPDOWNLISTCONTROLLER = 0x0F13;

/** Which item of a pop-up list is chosen, and which can be. */
class IDropDownListController : public IPMUnknown {
  public:
    enum { kDefaultIID = IID_IDROPDOWNLISTCONTROLLER };

    /** The index of the item chosen; -1 for none. */
    virtual int32 GetSelected() const = 0;
    /** Chooses an item; none by an index where there is none. */
    virtual void Select(int32 index, bool16 invalidate = kTrue, bool16 notifyOfChange = kTrue) = 0;
    /** Whether the user can choose an item. One that is chosen already stays so. */
    virtual void EnableItem(int32 index, bool16 enable = kTrue) = 0;
};
