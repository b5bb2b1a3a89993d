#pragma once

#include "PMTypes.h"

/**
 * Root of every interface. A reference is counted on the boss object behind the interface:
 * QueryInterface hands out a reference that the caller releases, or nullptr when the boss has no
 * such interface. There is no virtual destructor here, so the first slot a derived interface adds
 * is the fourth.
 */
class IPMUnknown {
  public:
    enum { kDefaultIID = IID_IPMUNKNOWN };

    virtual IPMUnknown* QueryInterface(PMIID interfaceID) const = 0;
    virtual void AddRef() const = 0;
    virtual void Release() const = 0;

  protected:
    ~IPMUnknown() = default;
};
