#include "workbench/WindowFrontEnd.h"

#include <QApplication>
#include <QMessageBox>

#include "host/runtime/Menus.h"

namespace linewright {

namespace {

/** Of a dialog window, the action that opened it. */
constexpr auto kActionProperty = "action";

QMessageBox::Icon IconOf(host::AlertKind kind) {
    switch (kind) {
        case host::AlertKind::kInformation: return QMessageBox::Information;
        case host::AlertKind::kWarning: return QMessageBox::Warning;
        case host::AlertKind::kError: return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

}  // namespace

void WindowFrontEnd::ShowAlert(host::AlertKind kind, const char* text) {
    QMessageBox box(IconOf(kind), window->windowTitle(), QString::fromUtf8(text), QMessageBox::Ok,
                    CurrentWindow());
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    QWidget* const asked = CurrentWindow();
    box.exec();
    // What is to be mended is in the box to type in.
    if (auto* const dialog = dynamic_cast<DialogWindow*>(asked)) dialog->FocusFirst();
}

void WindowFrontEnd::Do(ActionID wanted) {
    action = wanted;
    host::DoAction(wanted);
    action = 0;
}

std::vector<WindowFrontEnd::OpenDialog> WindowFrontEnd::OpenDialogs() const {
    std::vector<OpenDialog> dialogs;
    for (const QDialog* const child : window->findChildren<QDialog*>()) {
        const auto* const dialog = dynamic_cast<const DialogWindow*>(child);
        if (dialog == nullptr) continue;
        const ActionID opener = dialog->property(kActionProperty).value<ActionID>();
        if (dialog->isVisible() && opener != 0) dialogs.push_back({opener, dialog->Content()});
    }
    return dialogs;
}

void WindowFrontEnd::OpenAgain(const std::vector<OpenDialog>& dialogs) {
    for (const OpenDialog& open : dialogs) {
        Do(open.action);
        if (lastOpened) lastOpened->SetContent(open.content);
    }
}

void WindowFrontEnd::ShowDialog(host::ShownDialog& dialog) {
    if (dialog.GetType() == IDialog::kMovableModal) {
        DialogWindow(dialog, settings, offerCells, CurrentWindow()).exec();
        return;
    }
    auto* const opened = new DialogWindow(dialog, settings, offerCells, window);
    opened->setProperty(kActionProperty, QVariant::fromValue(action));
    lastOpened = opened;
    QObject::connect(opened, &QDialog::finished, opened, &QObject::deleteLater);
    opened->show();
    opened->raise();
    opened->activateWindow();
}

QWidget* WindowFrontEnd::CurrentWindow() const {
    QWidget* const active = QApplication::activeWindow();
    return active ? active : window;
}

}  // namespace linewright
