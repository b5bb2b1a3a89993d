#include "plugin/LWRUtilityDialogObserver.h"

#include "CoreResTypes.h"
#include "IBooleanControlData.h"
#include "IControlView.h"
#include "IDialogController.h"
#include "IStringListControlData.h"
#include "ISubject.h"
#include "WidgetID.h"
#include "core/EncodeBarcodeData.h"
#include "core/ErrorAlert.h"
#include "core/HostMemory.h"
#include "core/OpenPluginDialog.h"
#include "core/PluginID.h"
#include "core/PreferencesRecord.h"
#include "core/Status.h"
#include "plugin/DialogWidget.h"
#include "plugin/UtilityDialogType.h"

namespace linewright {

namespace {

/** A copy of some text as a data block of its own. */
class DataCopy {
  public:
    explicit DataCopy(const PString& text) : bytes(AllocBlock(text.length)), length(text.length) {
        if (bytes) CopyBytes(bytes, text.text, length);
    }
    DataCopy(const DataCopy&) = delete;
    DataCopy& operator=(const DataCopy&) = delete;
    ~DataCopy() { FreeBlock(bytes); }

    uint8* bytes;
    uint32 length;
};

double RatioOfItem(int32 item) {
    switch (item) {
        case 1: return 2.5;
        case 2: return 3.0;
        default: return 2.0;
    }
}

}  // namespace

void LWRUtilityDialogObserver::AutoAttach() {
    CDialogObserver::AutoAttach();
    const InterfacePtr<IPanelControlData> panel(this, UseDefaultIID());
    AttachToWidget(kPreferencesButtonWidgetID, IID_IBOOLEANCONTROLDATA, panel);
    AttachToWidget(kSpareButtonWidgetID, IID_IBOOLEANCONTROLDATA, panel);
    AttachToWidget(kTypeWidgetID, IID_ISTRINGLISTCONTROLDATA, panel);
}

void LWRUtilityDialogObserver::AutoDetach() {
    CDialogObserver::AutoDetach();
    const InterfacePtr<IPanelControlData> panel(this, UseDefaultIID());
    DetachFromWidget(kPreferencesButtonWidgetID, IID_IBOOLEANCONTROLDATA, panel);
    DetachFromWidget(kSpareButtonWidgetID, IID_IBOOLEANCONTROLDATA, panel);
    DetachFromWidget(kTypeWidgetID, IID_ISTRINGLISTCONTROLDATA, panel);
}

void LWRUtilityDialogObserver::Update(const ClassID& change, ISubject* subject,
                                      const PMIID& protocol, void* changedBy) {
    CDialogObserver::Update(change, subject, protocol, changedBy);
    const InterfacePtr<IControlView> view(subject, UseDefaultIID());
    const WidgetID widget = view ? view->GetWidgetID() : kDefaultWidgetId;
    if (change == kPopupChangeStateMessage && widget == kTypeWidgetID) {
        ChangeType();
    } else if (change == kTrueStateMessage && widget == kOKButtonWidgetID) {
        Convert();
    } else if (change == kTrueStateMessage && widget == kPreferencesButtonWidgetID) {
        OpenPluginDialog(kPrefsDialogResourceID, IDialog::kMovableModal);
    }
}

void LWRUtilityDialogObserver::ChangeType() {
    preferences.lastTypeIndex = static_cast<int16>(SelectedItem(this, kTypeWidgetID));
    ShowSelectedType(this);
}

void LWRUtilityDialogObserver::Convert() {
    const InterfacePtr<IDialogController> controller(this, UseDefaultIID());
    const BarcodeTypeEntry* const type = SelectedType(this);
    if (!controller || !type) return;

    PString& text = preferences.lastData;
    text.length = static_cast<uint8>(
        controller->GetTextControlData(kDataWidgetID).GetString(text.text, kMaxPStringLength));
    DataCopy data(text);
    if (!data.bytes) {
        if (preferences.showErrorAlerts)
            ReportFailure(kInternalError, type->code, {data.bytes, data.length}, nullptr);
        return;
    }

    const uint16 checkCharacter = IsChecked(this, kCheckDigitWidgetID) ? 1 : 0;
    const double ratio = RatioOfItem(SelectedItem(this, kRatioWidgetID));
    PMString hint;
    PMString humanReadable;
    EncodeBarcodeData(&data.bytes, type->name, &data.length, 0, nullptr, checkCharacter, ratio, 1,
                      &hint, &humanReadable);

    PMString result;
    result.SetString(reinterpret_cast<const char*>(data.bytes), static_cast<int32>(data.length));
    controller->SetTextControlData(kResultWidgetID, result);
    if (!humanReadable.IsEmpty()) controller->SetTextControlData(kDataWidgetID, humanReadable);
}

}  // namespace linewright
