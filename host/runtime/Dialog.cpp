#include "host/runtime/Dialog.h"

#include <algorithm>

#include "CoreResTypes.h"
#include "IDialogController.h"
#include "host/runtime/Bind.h"
#include "host/runtime/Halt.h"
#include "host/runtime/Running.h"

namespace host {

const BossClass kDialogClass{.name = "kDialogBoss", .bindings = {Bind<Dialog>(), Bind<Panel>()}};

Dialog::~Dialog() {
    for (const Widget* widget : fWidgets) widget->Release();
}

void Dialog::Build(const DialogResource& resource, IDialog::DialogType type) {
    fResource = &resource;
    fType = type;
    for (const WidgetResource& widget : resource.widgets)
        fWidgets.push_back(new Widget(*this, widget));
    for (std::size_t i = 0; i + 1 < fWidgets.size(); ++i) fWidgets[i]->SetNext(fWidgets[i + 1]);
}

void Dialog::Open() noexcept {
    if (fIsOpen) {
        if (kChecksRules) Halt("a dialog is opened that is open already");
        return;
    }
    const InterfacePtr<IPMUnknown> alive(this, IID_IPMUNKNOWN);
    fIsOpen = true;
    const InterfacePtr<IDialogController> controller(this, UseDefaultIID());
    if (controller) controller->InitializeDialogFields(nullptr);
    const InterfacePtr<IObserver> observer(this, UseDefaultIID());
    if (observer) observer->AutoAttach();
    ShowToUser();
    if (fIsOpen && fType == kMovableModal) PressCloseBox();
}

void Dialog::ShowToUser() {
    Running& running = *GetRunning();
    const WhileUserIsAsked asked(running);
    running.frontEnd->ShowDialog(*this);
}

void Dialog::Confirm() {
    const InterfacePtr<IDialogController> controller(this, UseDefaultIID());
    if (controller) {
        if (controller->ValidateDialogFields(nullptr) != kDefaultWidgetId) return;
        controller->ApplyDialogFields(nullptr, kOKButtonWidgetID);
    }
    if (fType == kMovableModal) Close();
}

void Dialog::Cancel() {
    const InterfacePtr<IDialogController> controller(this, UseDefaultIID());
    if (controller) controller->UserCancelled();
    Close();
}

void Dialog::PressCloseBox() {
    if (!fIsOpen) return;
    const InterfacePtr<IPMUnknown> alive(this, IID_IPMUNKNOWN);
    ShownWidget* const cancel = GetCancelButton();
    if (cancel) cancel->Press();
    if (fIsOpen) Cancel();
}

void Dialog::Close() {
    if (!fIsOpen) return;
    fIsOpen = false;
    const InterfacePtr<IObserver> observer(this, UseDefaultIID());
    if (observer) observer->AutoDetach();
    for (const Widget* widget : fWidgets) {
        if (kChecksRules && widget->IsObserved())
            Halt("an observer is attached to a widget of a dialog that is closed");
    }
    if (fListener) fListener->DialogClosed();
    // Whoever closed the dialog still holds a reference.
    const InterfacePtr<IPMUnknown> self(this, IID_IPMUNKNOWN);
    auto& dialogs = GetRunning()->dialogs;
    const auto found = std::find(dialogs.begin(), dialogs.end(), self.get());
    if (found == dialogs.end()) return;
    dialogs.erase(found);
    self->Release();
}

Widget* Dialog::FindWidget(WidgetID id) const {
    const auto found = std::find_if(fWidgets.begin(), fWidgets.end(),
                                    [id](const Widget* widget) { return widget->GetID() == id; });
    return id == 0 || found == fWidgets.end() ? nullptr : *found;
}

void Dialog::TellChanged(Widget& widget) {
    if (fListener) fListener->WidgetChanged(widget);
}

PMString Dialog::GetTitle() const {
    return PMString(fResource->title.c_str());
}

PMString Dialog::GetGroupTitle(int32 group) const {
    if (group < 0 || group >= CountGroups()) return {};
    return PMString(fResource->groups[static_cast<std::size_t>(group)].c_str());
}

ShownWidget* Dialog::GetWidget(int32 index) const {
    if (index < 0 || index >= CountWidgets()) return nullptr;
    return fWidgets[static_cast<std::size_t>(index)];
}

IControlView* Panel::FindWidget(const WidgetID& widgetID) const noexcept {
    const InterfacePtr<IDialog> dialog(this, UseDefaultIID());
    Widget* const widget = static_cast<Dialog*>(dialog.get())->FindWidget(widgetID);
    return widget ? widget->View() : nullptr;
}

void Discard(Boss* boss) {
    const InterfacePtr<IDialog> dialog(boss, UseDefaultIID());
    static_cast<Dialog*>(dialog.get())->PressCloseBox();
    auto& dialogs = GetRunning()->dialogs;
    const auto found = std::find(dialogs.begin(), dialogs.end(), boss);
    if (found == dialogs.end()) return;
    dialogs.erase(found);
    boss->Release();
}

}  // namespace host
