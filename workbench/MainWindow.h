#pragma once

#include <QMainWindow>
#include <QSettings>
#include <QTabWidget>
#include <functional>
#include <utility>
#include <vector>

#include "requests/Service.h"
#include "workbench/Language.h"
#include "workbench/Page.h"

namespace linewright {

/** The window: its pages, and the menus of the plug-in among its own and the pages'. */
class MainWindow final : public QMainWindow {
  public:
    /** The settings keep the window's place and outlive it; `languageChosen` hears of a locale
     *  that the user picks. */
    MainWindow(QSettings& userSettings, std::function<void(const QString&)> languageChosen);

    /** Shows the pages and menus of the plug-in that runs now, in its locale. The service is the
     *  same object each time. `fonts` is the folder of the barcode fonts. */
    void ShowPlugIn(Service& service, const QString& fonts);
    /** The plug-in is about to stop: nothing asks it until it is shown again. */
    void HidePlugIn();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void MakePages(Service& service, const QString& fonts);
    /** The page gets a tab with the title, and belongs to the window. */
    void AddPage(Page* page, const Phrase& title);
    Page* CurrentPage() const;
    /** Shows the page that takes several cells, with them. */
    void OfferCells(const QString& cells);
    void SpeakPages();
    void MakeMenus();
    void AddPageMenu(MenuPlace place, const Phrase& title);
    void AddPlugInMenus();
    void AddLanguageMenu();
    /** Of the pages' actions those stand in the menus that belong to the page that is shown. */
    void ShowPageActions();

    QSettings& settings;
    std::function<void(const QString&)> chooseLanguage;
    QString locale;
    QTabWidget* tabs;
    std::vector<std::pair<Page*, Phrase>> pages;
};

}  // namespace linewright
