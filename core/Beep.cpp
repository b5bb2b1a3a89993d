#include "core/Beep.h"

#include "SysBeep.h"

namespace linewright {

void Beep() {
    SysBeep();
}

}  // namespace linewright
