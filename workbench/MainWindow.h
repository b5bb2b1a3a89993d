#pragma once

#include <QMainWindow>
#include <QSettings>
#include <QTabWidget>
#include <functional>
#include <utility>
#include <vector>

#include "PMTypes.h"
#include "requests/Service.h"
#include "workbench/Language.h"
#include "workbench/Page.h"
#include "workbench/PresetChooser.h"
#include "workbench/Surroundings.h"

namespace linewright {

/** The window: its pages, and the menus of the plug-in among its own and the pages'. */
class MainWindow final : public QMainWindow {
  public:
    /** The settings keep the window's place and outlive it; `languageChosen` hears of a locale
     *  that the user picks, `actionChosen` of an entry of the plug-in's menus. */
    MainWindow(QSettings& userSettings, std::function<void(const QString&)> languageChosen,
               std::function<void(ActionID)> actionChosen);

    /** Shows the pages and menus of the plug-in that runs now, in its locale. The service is the
     *  same object each time. */
    void ShowPlugIn(Service& service, const Surroundings& places);
    /** The plug-in is about to stop: nothing asks it until it is shown again. */
    void HidePlugIn();
    /** Shows the page that takes several cells of a spreadsheet, with them. */
    void OfferCells(const QString& cells);

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void MakePages(Service& service);
    /** The page gets a tab with the title, and belongs to the window. */
    void AddPage(Page* page, const Phrase& title);
    Page* CurrentPage() const;
    void SpeakPages();
    void MakeMenus();
    void AddPageMenu(MenuPlace place, const Phrase& title);
    void AddPlugInMenus();
    void AddLanguageMenu();
    void AddHelpMenu();
    void InstallFonts();
    void ShowHelp();
    void ShowAbout();
    /** Of the pages' actions those stand in the menus that belong to the page that is shown. */
    void ShowPageActions();

    QSettings& settings;
    std::function<void(const QString&)> chooseLanguage;
    std::function<void(ActionID)> chooseAction;
    Surroundings surroundings;
    QString locale;
    QTabWidget* tabs;
    std::vector<std::pair<Page*, Phrase>> pages;
    PresetChooser* presetChooser = nullptr;
};

}  // namespace linewright
