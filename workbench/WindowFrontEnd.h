#pragma once

#include <QPointer>
#include <QSettings>
#include <QVariantMap>
#include <QWidget>
#include <functional>
#include <utility>
#include <vector>

#include "PMTypes.h"
#include "host/runtime/FrontEnd.h"
#include "workbench/DialogWindow.h"

namespace linewright {

/** Shows what the plug-in has to show in windows. */
class WindowFrontEnd final : public host::FrontEnd {
  public:
    /** Settings and window outlive this; the window is where alerts and dialogs belong.
     *  `cellsPasted` hears of several cells of a spreadsheet. */
    WindowFrontEnd(QSettings& userSettings, QWidget* mainWindow, std::function<void()> makeBeep,
                   std::function<void(const QString&)> cellsPasted)
        : settings(userSettings),
          window(mainWindow),
          beep(std::move(makeBeep)),
          offerCells(std::move(cellsPasted)) {}

    /** Has the plug-in do what an entry of its menus stands for. */
    void Do(ActionID action);

    /** A dialog that is open, to be opened again by a host that is started anew. */
    struct OpenDialog {
        ActionID action;
        QVariantMap content;
    };
    std::vector<OpenDialog> OpenDialogs() const;
    void OpenAgain(const std::vector<OpenDialog>& dialogs);

    void ShowAlert(host::AlertKind kind, const char* text) override;
    void Beep() override { beep(); }
    void ShowDialog(host::ShownDialog& dialog) override;

  private:
    /** The window that the user is at. */
    QWidget* CurrentWindow() const;

    QSettings& settings;
    QWidget* window;
    std::function<void()> beep;
    std::function<void(const QString&)> offerCells;
    /** What the plug-in is doing. */
    ActionID action = 0;
    QPointer<DialogWindow> lastOpened;
};

}  // namespace linewright
