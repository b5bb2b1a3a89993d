#include "workbench/MainWindow.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QStatusBar>
#include <QSysInfo>
#include <algorithm>

#include "host/runtime/Host.h"
#include "host/runtime/Menus.h"
#include "host/runtime/Paths.h"
#include "userfonts/UserFonts.h"
#include "workbench/BarcodePage.h"
#include "workbench/HelpWindow.h"
#include "workbench/Icon.h"
#include "workbench/ListPage.h"
#include "workbench/MenuPhrases.h"
#include "workbench/OutputPhrases.h"
#include "workbench/Text.h"

namespace linewright {

namespace {

constexpr auto kGeometryKey = "window/geometry";
constexpr auto kPageKey = "window/page";

/** The host's pseudo-locale, for tests; nobody picks it. */
constexpr QLatin1String kPseudoLocale("qps");

}  // namespace

MainWindow::MainWindow(QSettings& userSettings, std::function<void(const QString&)> languageChosen,
                       std::function<void(ActionID)> actionChosen)
    : settings(userSettings),
      chooseLanguage(std::move(languageChosen)),
      chooseAction(std::move(actionChosen)) {
    constexpr QSize kFirstSize(900, 600);
    setWindowTitle(QStringLiteral("Linewright"));
    setWindowIcon(ProgramIcon());
    // A window manager adds a frame.
    constexpr QSize kFrame(16, 48);
    resize(kFirstSize.boundedTo(screen()->availableSize() - kFrame));
    restoreGeometry(settings.value(kGeometryKey).toByteArray());
    statusBar()->setSizeGripEnabled(true);
    tabs = new QTabWidget(this);
    tabs->setObjectName(QStringLiteral("pages"));
    tabs->setDocumentMode(true);
    setCentralWidget(tabs);
    connect(tabs, &QTabWidget::currentChanged, this, [this] { ShowPageActions(); });
}

void MainWindow::ShowPlugIn(Service& service, const Surroundings& places) {
    surroundings = places;
    locale = RunningLocale();
    const bool isFirst = pages.empty();
    if (isFirst) MakePages(service);
    SpeakPages();
    MakeMenus();
    tabs->setEnabled(true);
    if (!isFirst) return;
    tabs->setCurrentIndex(settings.value(kPageKey, 0).toInt());
    CurrentPage()->setFocus();
}

void MainWindow::HidePlugIn() {
    for (QMenu* const menu : menuBar()->findChildren<QMenu*>()) delete menu;
    tabs->setEnabled(false);
}

void MainWindow::MakePages(Service& service) {
    const std::string presets =
        (QFileInfo(settings.fileName()).path() + QLatin1String("/Presets")).toStdString();
    auto* const page = new BarcodePage(service, settings, surroundings,
                                       [this](const QString& cells) { OfferCells(cells); });
    SizeStrip& strip = page->Sizes();
    presetChooser = new PresetChooser(host::PathFromUtf8(presets), &strip);
    presetChooser->chosen = [&strip](const DrawingWish& wish) { strip.SetWish(wish); };
    presetChooser->sizes = [&strip] { return strip.Wish(); };
    strip.AddWidget(presetChooser);
    AddPage(page, phrases::kBarcodePage);
    AddPage(new ListPage(service, settings, surroundings.fonts, presets), phrases::kListPage);
}

void MainWindow::AddPage(Page* page, const Phrase& title) {
    pages.emplace_back(page, title);
    tabs->addTab(page, QString());
}

Page* MainWindow::CurrentPage() const {
    return static_cast<Page*>(tabs->currentWidget());
}

void MainWindow::OfferCells(const QString& cells) {
    const auto taker = std::find_if(pages.begin(), pages.end(),
                                    [&](const auto& page) { return page.first->TakeCells(cells); });
    if (taker != pages.end()) tabs->setCurrentWidget(taker->first);
}

void MainWindow::SpeakPages() {
    presetChooser->Speak(locale);
    for (const auto& [page, title] : pages) {
        tabs->setTabText(tabs->indexOf(page), Say(title, locale));
        page->Speak(locale);
    }
}

void MainWindow::closeEvent(QCloseEvent* event) {
    settings.setValue(kGeometryKey, saveGeometry());
    settings.setValue(kPageKey, tabs->currentIndex());
    event->accept();
    QApplication::quit();
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    // Back from a dialog that may have changed the preferences.
    if (event->type() != QEvent::ActivationChange || !isActiveWindow() || !tabs->isEnabled())
        return;
    for (const auto& [page, title] : pages) page->Refresh();
}

void MainWindow::MakeMenus() {
    AddPageMenu(MenuPlace::kFile, phrases::kFileMenu);
    AddPageMenu(MenuPlace::kEdit, phrases::kEditMenu);
    AddPageMenu(MenuPlace::kView, phrases::kViewMenu);
    AddPlugInMenus();
    AddLanguageMenu();
    AddHelpMenu();
    ShowPageActions();
}

void MainWindow::AddPageMenu(MenuPlace place, const Phrase& title) {
    QMenu* const menu = menuBar()->addMenu(Say(title, locale));
    for (const auto& [page, caption] : pages) menu->addActions(page->Actions(place));
    if (place != MenuPlace::kFile) return;
    menu->addSeparator();
    QAction* const install =
        menu->addAction(Say(phrases::kInstallFonts, locale), this, [this] { InstallFonts(); });
    install->setObjectName(QStringLiteral("installFonts"));
    menu->addSeparator();
    QAction* const quit = menu->addAction(Say(phrases::kQuit, locale), this, [this] { close(); });
    quit->setShortcut(QKeySequence::Quit);
    quit->setMenuRole(QAction::QuitRole);
}

void MainWindow::AddPlugInMenus() {
    QMap<QString, QMenu*> menus;
    for (int32 i = 0; i < host::CountMenuItems(); ++i) {
        const host::MenuItem item = host::GetMenuItem(i);
        const QString name = TextFromHost(item.menu);
        if (!menus.contains(name)) menus[name] = menuBar()->addMenu(name);
        menus[name]->addAction(TextFromHost(item.text), this,
                               [this, action = item.action] { chooseAction(action); });
    }
}

void MainWindow::AddLanguageMenu() {
    QMenu* const menu = menuBar()->addMenu(Say(phrases::kLanguageMenu, locale));
    auto* const group = new QActionGroup(menu);
    for (int32 i = 0; i < host::CountLocales(); ++i) {
        const QString name = QString::fromUtf8(host::GetLocaleName(i));
        if (name == kPseudoLocale) continue;
        QAction* const action = menu->addAction(LanguageName(name));
        action->setCheckable(true);
        action->setChecked(name == locale);
        action->setData(name);
        group->addAction(action);
    }
    // Later, since the menu itself goes with the host.
    connect(
        group, &QActionGroup::triggered, this,
        [this](QAction* action) { chooseLanguage(action->data().toString()); },
        Qt::QueuedConnection);
}

void MainWindow::AddHelpMenu() {
    QMenu* const menu = menuBar()->addMenu(Say(phrases::kHelpMenu, locale));
    QAction* const help =
        menu->addAction(Say(phrases::kHelp, locale), this, [this] { ShowHelp(); });
    help->setShortcut(QKeySequence::HelpContents);
    QAction* const about =
        menu->addAction(Say(phrases::kAbout, locale), this, [this] { ShowAbout(); });
    about->setMenuRole(QAction::AboutRole);
}

void MainWindow::InstallFonts() {
    const InstalledFonts installed = InstallUserFonts(host::PathFromUtf8(surroundings.fonts));
    if (installed.error.empty()) {
        QMessageBox::information(
            this, windowTitle(),
            Say(phrases::kFontsInstalled, locale)
                .arg(QString::number(installed.count),
                     QString::fromStdString(host::Utf8FromPath(installed.folder))));
    } else {
        QMessageBox::critical(
            this, windowTitle(),
            Say(phrases::kFontsNotInstalled, locale).arg(QString::fromStdString(installed.error)));
    }
}

void MainWindow::ShowHelp() {
    auto* const help = new HelpWindow(locale, this);
    help->show();
}

void MainWindow::ShowAbout() {
    QMessageBox box(QMessageBox::NoIcon, Say(phrases::kAboutTitle, locale),
                    Say(phrases::kAboutText, locale)
                        .arg(QApplication::applicationVersion(), QString::fromLatin1(qVersion()),
                             QSysInfo::prettyProductName()),
                    QMessageBox::Ok, this);
    constexpr int kIconSize = 64;
    box.setIconPixmap(windowIcon().pixmap(kIconSize));
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.exec();
}

void MainWindow::ShowPageActions() {
    const Page* const shown = CurrentPage();
    for (const auto& [page, title] : pages) {
        for (const MenuPlace place : {MenuPlace::kFile, MenuPlace::kEdit, MenuPlace::kView}) {
            for (QAction* const action : page->Actions(place)) action->setVisible(page == shown);
        }
    }
}

}  // namespace linewright
