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
    WindowFrontEnd(QSettings& settings, QWidget* window, std::function<void()> beep)
        : fSettings(settings), fWindow(window), fBeep(std::move(beep)) {}

    void ShowAlert(host::AlertKind kind, const char* text) override;
    void Beep() override { fBeep(); }
    void ShowDialog(host::ShownDialog& dialog) override;

  private:
    /** The window that the user is at. */
    QWidget* CurrentWindow() const;

    QSettings& fSettings;
    QWidget* fWindow;
    std::function<void()> fBeep;
};

}  // namespace linewright
