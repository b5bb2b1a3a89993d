#pragma once

#include <vector>

#include "CPMUnknown.h"
#include "IObserver.h"
#include "IPanelControlData.h"
#include "host/runtime/BossClass.h"
#include "host/runtime/Widget.h"

namespace host {

class Boss;

/** The host's class that a plug-in's dialogs are based on. */
extern const BossClass kDialogClass;

/** One dialog: its widgets, and how it opens and closes. An implementation of the plug-in's class
 *  of dialog, beside the plug-in's own controller and observer. */
class Dialog final : public CPMUnknown<IDialog>, public ShownDialog {
  public:
    explicit Dialog(IPMUnknown* boss) : CPMUnknown(boss) {}
    ~Dialog() override;

    /** Makes the widgets. Called once, before all else; the resource outlives the dialog. */
    void Build(const DialogResource& resource, IDialog::DialogType type);
    void Open() noexcept override;

    /** OK and Cancel as every dialog has them. */
    void Confirm();
    void Cancel();
    /** The widget of an id; nullptr when there is none. */
    Widget* FindWidget(WidgetID id) const;
    /** Tells whoever shows the dialog. */
    void TellChanged(Widget& widget);

    RsrcID GetResourceID() const override { return fResource->id; }
    IDialog::DialogType GetType() const override { return fType; }
    PMString GetTitle() const override;
    int32 CountGroups() const override { return static_cast<int32>(fResource->groups.size()); }
    PMString GetGroupTitle(int32 group) const override;
    int32 CountWidgets() const override { return static_cast<int32>(fWidgets.size()); }
    ShownWidget* GetWidget(int32 index) const override;
    ShownWidget* FindShown(WidgetID id) const override { return FindWidget(id); }
    ShownWidget* GetDefaultButton() const override { return FindWidget(fResource->defaultButton); }
    ShownWidget* GetCancelButton() const override { return FindWidget(fResource->cancelButton); }
    void SetListener(DialogListener* listener) override { fListener = listener; }
    bool IsOpen() const override { return fIsOpen; }
    void PressCloseBox() override;

  private:
    void ShowToUser();
    void Close();

    const DialogResource* fResource = nullptr;
    IDialog::DialogType fType = kMovableModal;
    std::vector<Widget*> fWidgets;  // one reference each
    DialogListener* fListener = nullptr;
    bool fIsOpen = false;
};

/** The widgets of a dialog as its plug-in sees them. */
class Panel final : public CPMUnknown<IPanelControlData> {
  public:
    using CPMUnknown::CPMUnknown;

    IControlView* FindWidget(const WidgetID& widgetID) const noexcept override;
};

/** Closes a dialog that is open still, and forgets it: for the host's end. */
void Discard(Boss* boss);

}  // namespace host
