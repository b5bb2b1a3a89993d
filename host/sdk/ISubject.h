#pragma once

#include "IPMUnknown.h"

class IObserver;

constexpr PMIID IID_ISUBJECT = 0x0F0C;

/** What can be observed of an object. Observers are not counted: they detach before they go. */
class ISubject : public IPMUnknown {
  public:
    enum { kDefaultIID = IID_ISUBJECT };

    /** Changes of `protocol`, an interface of the object, are told to the observer, once each. */
    virtual void AttachObserver(IObserver* observer, const PMIID& protocol) = 0;
    virtual void DetachObserver(IObserver* observer, const PMIID& protocol) = 0;
};
