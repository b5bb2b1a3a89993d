// A plug-in that registers one implementation id for two classes.

#include "CPMUnknown.h"

extern "C" PlugIn* GetPlugIn() {
    static PlugIn plugIn;
    return &plugIn;
}

namespace {

class First : public CPMUnknown<IPMUnknown> {
  public:
    using CPMUnknown::CPMUnknown;
};

class Second : public CPMUnknown<IPMUnknown> {
  public:
    using CPMUnknown::CPMUnknown;
};

CREATE_PMINTERFACE(First, 0x99000);
CREATE_PMINTERFACE(Second, 0x99000);

}  // namespace
