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
    QMessageBox box(IconOf(kind), window->windowTitle(), QString::fromUtf8(text), QMessageBox::Ok,
                    CurrentWindow());
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.exec();
}

void WindowFrontEnd::ShowDialog(host::ShownDialog& dialog) {
    if (dialog.GetType() == IDialog::kMovableModal) {
        DialogWindow(dialog, settings, CurrentWindow()).exec();
        return;
    }
    auto* const opened = new DialogWindow(dialog, settings, window);
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
