#include "workbench/MainWindow.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>

#include "LocaleSetting.h"
#include "host/runtime/Host.h"
#include "host/runtime/Menus.h"
#include "workbench/Language.h"
#include "workbench/Text.h"

namespace linewright {

namespace {

constexpr auto kGeometryKey = "window/geometry";

/** The host's pseudo-locale, for tests; nobody picks it. */
constexpr QLatin1String kPseudoLocale("qps");

QString RunningLocale() {
    return QString::fromUtf8(host::GetLocaleName(WLocaleSetting::GetLocale()));
}

}  // namespace

MainWindow::MainWindow(QSettings& userSettings, std::function<void(const QString&)> languageChosen)
    : settings(userSettings), chooseLanguage(std::move(languageChosen)) {
    constexpr QSize kFirstSize(760, 520);
    setWindowTitle(QStringLiteral("Linewright"));
    resize(kFirstSize);
    restoreGeometry(settings.value(kGeometryKey).toByteArray());
}

void MainWindow::ShowPlugIn(Service& service, const QString& fonts) {
    const QString locale = RunningLocale();
    AddFileMenu(locale);
    AddPlugInMenus();
    AddLanguageMenu(locale);
    page = new BarcodePage(service, settings, fonts.toStdString(), locale);
    setCentralWidget(page);
    page->setFocus();
}

void MainWindow::HidePlugIn() {
    for (QMenu* const menu : menuBar()->findChildren<QMenu*>()) delete menu;
    page = nullptr;
    delete takeCentralWidget();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    settings.setValue(kGeometryKey, saveGeometry());
    event->accept();
    QApplication::quit();
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    // Back from a dialog that may have changed the preferences.
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && page) page->Refresh();
}

void MainWindow::AddFileMenu(const QString& locale) {
    QMenu* const menu = menuBar()->addMenu(Say(Phrase::kFileMenu, locale));
    QAction* const quit = menu->addAction(Say(Phrase::kQuit, locale), this, [this] { close(); });
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
                               [action = item.action] { host::DoAction(action); });
    }
}

void MainWindow::AddLanguageMenu(const QString& locale) {
    QMenu* const menu = menuBar()->addMenu(Say(Phrase::kLanguageMenu, locale));
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

}  // namespace linewright
