#include "CAlert.h"

#include "host/runtime/HostText.h"
#include "host/runtime/Running.h"

namespace {

int16 Show(host::AlertKind kind, const PMString& message) noexcept {
    constexpr int16 kOnlyButton = 1;
    const host::Running* const running = host::GetRunning();
    if (!running || !running->showsAlerts) return kOnlyButton;
    PMString text = message;
    text.Translate();
    running->frontEnd->ShowAlert(kind, host::ToUtf8(text).c_str());
    return kOnlyButton;
}

}  // namespace

int16 CAlert::InformationAlert(const PMString& message) {
    return Show(host::AlertKind::kInformation, message);
}

int16 CAlert::WarningAlert(const PMString& message) {
    return Show(host::AlertKind::kWarning, message);
}

int16 CAlert::ErrorAlert(const PMString& message) {
    return Show(host::AlertKind::kError, message);
}

bool16 CAlert::GetShowAlerts() {
    const host::Running* const running = host::GetRunning();
    return running && running->showsAlerts ? kTrue : kFalse;
}

void CAlert::SetShowAlerts(bool16 show) {
    if (host::Running* const running = host::GetRunning()) running->showsAlerts = show != kFalse;
}
