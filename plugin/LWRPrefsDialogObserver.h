#pragma once

#include "CDialogObserver.h"

namespace linewright {

/** Takes the MSI Plessey check digits over into the live preferences as soon as they are chosen,
 *  and keeps the two pop-ups consistent. */
class LWRPrefsDialogObserver : public CDialogObserver {
  public:
    using CDialogObserver::CDialogObserver;

    void AutoAttach() override;
    void AutoDetach() override;
    void Update(const ClassID& change, ISubject* subject, const PMIID& protocol,
                void* changedBy) override;
};

}  // namespace linewright
