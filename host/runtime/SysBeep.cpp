#include "SysBeep.h"

#include "host/runtime/Running.h"

void SysBeep() {
    if (const host::Running* const running = host::GetRunning()) running->frontEnd->Beep();
}
