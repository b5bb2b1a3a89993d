#pragma once

#include "IPMUnknown.h"

class ISubject;

constexpr PMIID IID_IOBSERVER = 0x0F0B;

/** Hears of changes of the subjects that it is attached to. Main thread only. */
class IObserver : public IPMUnknown {
  public:
    enum { kDefaultIID = IID_IOBSERVER };

    /** Attaches to what it wants to hear of, and detaches from all of it again. */
    virtual void AutoAttach() = 0;
    virtual void AutoDetach() = 0;
    /** A change of `subject`, of the kind that it was attached for by `protocol`. */
    virtual void Update(const ClassID& change, ISubject* subject, const PMIID& protocol,
                        void* changedBy) = 0;
};
