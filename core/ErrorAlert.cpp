#include "core/ErrorAlert.h"

#include "CAlert.h"
#include "core/BarcodeTypeRegistry.h"
#include "core/ReplaceMarkers.h"
#include "core/Status.h"

namespace linewright {

namespace {

const char* KnownFailureKey(int16 status) {
    switch (status) {
        case kBadLength: return "0x122100kLWRErrorBarCodeBadLength";
        case kInvalidData: return "0x122100kLWRErrorBarCodeInvalidData";
        case kInternalError: return "0x122100kLWRErrorBarCodeInternal";
        default: return nullptr;
    }
}

}  // namespace

void ReportFailure(int16 status, uint16 typeCode, DataBlock data, const PMString* hint) {
    if (const char* const key = KnownFailureKey(status)) {
        PMString message(key);
        PMString typeText;
        DisplayTextForCode(typeCode, typeText);
        ReplaceMarkers(message, &typeText, hint);
        ShowErrorAlertForced(message);
        return;
    }
    // The data goes through a short string, whose length byte is the low byte of the length.
    PMString text;
    text.SetString(reinterpret_cast<const char*>(data.bytes),
                   static_cast<int32>(data.length & 0xFF));
    PMString message("0x122100kLWRWarningBarCodeDataTranslationErrorKey");
    ReplaceMarkers(message, &text);
    CAlert::ErrorAlert(message);
}

void ShowErrorAlertForced(const PMString& message) {
    const bool16 wasOff = !CAlert::GetShowAlerts();
    if (wasOff) CAlert::SetShowAlerts(kTrue);
    CAlert::ErrorAlert(message);
    if (wasOff) CAlert::SetShowAlerts(kFalse);
}

}  // namespace linewright
