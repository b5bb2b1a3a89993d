#pragma once

#include "CDialogObserver.h"

namespace linewright {

/** Describes the type that is chosen, converts on OK, and opens the preferences dialog. */
class LWRUtilityDialogObserver : public CDialogObserver {
  public:
    using CDialogObserver::CDialogObserver;

    void AutoAttach() override;
    void AutoDetach() override;
    void Update(const ClassID& change, ISubject* subject, const PMIID& protocol,
                void* changedBy) override;

  private:
    void ChangeType();
    /** Turns the data into a font string in the result field. */
    void Convert();
};

}  // namespace linewright
