#pragma once

#include <QSettings>
#include <QString>
#include <functional>
#include <optional>

#include "requests/Service.h"
#include "workbench/MainWindow.h"
#include "workbench/WindowFrontEnd.h"

namespace linewright {

/** What the desktop program is started with; an empty text takes the default. */
struct WorkbenchOptions {
    QString plugIn;         // the library
    QString roamingFolder;  // of the host; the program's own settings lie in it too
    QString appFolder;
    QString fonts;   // the folder of the barcode fonts
    QString locale;  // rather than the one used last, or else the user's
    std::function<void()> beep;
};

/** The desktop program: the host with the plug-in, and the window to use them in. */
class Workbench final {
  public:
    explicit Workbench(const WorkbenchOptions& wanted);
    Workbench(const Workbench&) = delete;
    Workbench& operator=(const Workbench&) = delete;
    ~Workbench();

    /** Starts the host and fills the window. False when the plug-in cannot be started; Error()
     *  says why. */
    bool Start();
    QString Error() const { return error; }
    MainWindow& Window() { return window; }

    /** Starts the host anew with another language, which is remembered. Dialogs that are open are
     *  closed; nothing happens while a modal one is. */
    void SwitchLanguage(const QString& locale);

  private:
    bool StartHost(const QString& locale);
    void StopHost();

    WorkbenchOptions options;
    QSettings settings;
    MainWindow window;
    WindowFrontEnd frontEnd;
    std::optional<Service> service;
    QString error;
};

}  // namespace linewright
