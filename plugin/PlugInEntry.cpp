#include "PlugIn.h"

PlugIn* GetPlugIn() {
    static PlugIn plugIn;
    return &plugIn;
}
