#pragma once

#include <QMainWindow>
#include <QSettings>
#include <functional>

#include "workbench/BarcodePage.h"

namespace linewright {

/** The window: the menus of the plug-in among its own, and a page. */
class MainWindow final : public QMainWindow {
  public:
    /** The settings keep the window's place and outlive it; `languageChosen` hears of a locale
     *  that the user picks. */
    MainWindow(QSettings& userSettings, std::function<void(const QString&)> languageChosen);

    /** Shows the menus of the plug-in that runs now, in its locale, and the page that uses it.
     *  `fonts` is the folder of the barcode fonts. */
    void ShowPlugIn(Service& service, const QString& fonts);
    void HidePlugIn();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void AddFileMenu(const QString& locale);
    void AddPlugInMenus();
    void AddLanguageMenu(const QString& locale);

    QSettings& settings;
    std::function<void(const QString&)> chooseLanguage;
    BarcodePage* page = nullptr;
};

}  // namespace linewright
