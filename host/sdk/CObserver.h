#pragma once

#include "CPMUnknown.h"
#include "IObserver.h"

/** Base of an observer: hears of nothing. */
class CObserver : public CPMUnknown<IObserver> {
  public:
    using CPMUnknown::CPMUnknown;

    void AutoAttach() override {}
    void AutoDetach() override {}
    void Update(const ClassID& /*change*/, ISubject* /*subject*/, const PMIID& /*protocol*/,
                void* /*changedBy*/) override {}
};
