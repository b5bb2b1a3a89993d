#include "workbench/WindowFrontEnd.h"

#include <QApplication>
#include <QMessageBox>

#include "workbench/DialogWindow.h"

namespace linewright {

namespace {

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
    QMessageBox box(IconOf(kind), fWindow->windowTitle(), QString::fromUtf8(text), QMessageBox::Ok,
                    CurrentWindow());
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.exec();
}

void WindowFrontEnd::ShowDialog(host::ShownDialog& dialog) {
    if (dialog.GetType() == IDialog::kMovableModal) {
        DialogWindow(dialog, fSettings, CurrentWindow()).exec();
        return;
    }
    auto* const window = new DialogWindow(dialog, fSettings, fWindow);
    QObject::connect(window, &QDialog::finished, window, &QObject::deleteLater);
    window->show();
    window->raise();
    window->activateWindow();
}

QWidget* WindowFrontEnd::CurrentWindow() const {
    QWidget* const active = QApplication::activeWindow();
    return active ? active : fWindow;
}

}  // namespace linewright
