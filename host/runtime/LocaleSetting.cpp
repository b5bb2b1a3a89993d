#include "LocaleSetting.h"

#include "host/runtime/Running.h"

PMLocaleId WLocaleSetting::GetLocale() {
    const host::Running* const running = host::GetRunning();
    return running ? running->locale : 0;
}
