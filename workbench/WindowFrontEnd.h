#pragma once

#include <QSettings>
#include <QWidget>
#include <functional>

#include "host/runtime/FrontEnd.h"

namespace linewright {

/** Shows what the plug-in has to show in windows. */
class WindowFrontEnd final : public host::FrontEnd {
  public:
    /** Settings and window outlive this; the window is where alerts and dialogs belong. */
    WindowFrontEnd(QSettings& userSettings, QWidget* mainWindow, std::function<void()> makeBeep)
        : settings(userSettings), window(mainWindow), beep(std::move(makeBeep)) {}

    void ShowAlert(host::AlertKind kind, const char* text) override;
    void Beep() override { beep(); }
    void ShowDialog(host::ShownDialog& dialog) override;

  private:
    /** The window that the user is at. */
    QWidget* CurrentWindow() const;

    QSettings& settings;
    QWidget* window;
    std::function<void()> beep;
};

}  // namespace linewright
