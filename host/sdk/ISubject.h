#pragma once

#include "IPMUnknown.h"

class IObserver;

/** What can be observed of an object. Observers are not counted: they detach before they go. */
class ISubject : public IPMUnknown {
  public:
    enum { kDefaultIID = 0x0F0C };

    /** Changes of `protocol`, an interface of the object, are told to the observer, once each. */
    virtual void AttachObserver(IObserver* observer, const PMIID& protocol) = 0;
    virtual void DetachObserver(IObserver* observer, const PMIID& protocol) = 0;
};

const PMIID IID_ISUBJECT(ISubject::kDefaultIID);
