#pragma once

#include "CDialogController.h"

namespace linewright {

/** Fills the utility dialog: all barcode types, and the type and data last used. */
class LWRUtilityDialogController : public CDialogController {
  public:
    using CDialogController::CDialogController;

    void InitializeDialogFields(IActiveContext* context) override;
};

}  // namespace linewright
