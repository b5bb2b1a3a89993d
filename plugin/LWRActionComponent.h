#pragma once

#include "CActionComponent.h"

namespace linewright {

/** Opens the dialogs that the plug-in's menu items stand for; ignores all other actions. */
class LWRActionComponent : public CActionComponent {
  public:
    using CActionComponent::CActionComponent;

    void DoAction(IActiveContext* context, ActionID actionID, GSysPoint mousePoint,
                  IPMUnknown* widget) override;
};

}  // namespace linewright
