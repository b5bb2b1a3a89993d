#include "workbench/MainWindow.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

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

MainWindow::MainWindow(QSettings& settings, std::function<void(const QString&)> chooseLanguage)
    : fSettings(settings), fChooseLanguage(std::move(chooseLanguage)) {
    constexpr QSize kFirstSize(720, 460);
    setWindowTitle(QStringLiteral("Linewright"));
    resize(kFirstSize);
    restoreGeometry(fSettings.value(kGeometryKey).toByteArray());
}

void MainWindow::ShowPlugIn() {
    const QString locale = RunningLocale();
    AddFileMenu(locale);
    AddPlugInMenus();
    AddLanguageMenu(locale);
    setCentralWidget(MakePage(locale));
}

void MainWindow::HidePlugIn() {
    for (QMenu* const menu : menuBar()->findChildren<QMenu*>()) delete menu;
    delete takeCentralWidget();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    fSettings.setValue(kGeometryKey, saveGeometry());
    event->accept();
    QApplication::quit();
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
        [this](QAction* action) { fChooseLanguage(action->data().toString()); },
        Qt::QueuedConnection);
}

QWidget* MainWindow::MakePage(const QString& locale) {
    auto* const page = new QWidget;
    auto* const column = new QVBoxLayout(page);
    auto* const title = new QLabel(QStringLiteral("Linewright"));
    QFont font = title->font();
    font.setPointSizeF(2 * font.pointSizeF());
    title->setFont(font);
    auto* const text = new QLabel(Say(Phrase::kWelcome, locale));
    column->addStretch();
    column->addWidget(title, 0, Qt::AlignHCenter);
    column->addWidget(text, 0, Qt::AlignHCenter);
    column->addSpacing(2 * column->spacing());
    auto* const buttons = new QVBoxLayout;
    for (int32 i = 0; i < host::CountMenuItems(); ++i) {
        const host::MenuItem item = host::GetMenuItem(i);
        auto* const button = new QPushButton(TextFromHost(item.text));
        button->setMinimumHeight(2 * button->fontMetrics().height());
        button->setMinimumWidth(2 * button->sizeHint().width());
        connect(button, &QPushButton::clicked, this,
                [action = item.action] { host::DoAction(action); });
        buttons->addWidget(button);
    }
    auto* const row = new QHBoxLayout;
    row->addStretch();
    row->addLayout(buttons);
    row->addStretch();
    column->addLayout(row);
    column->addStretch();
    return page;
}

}  // namespace linewright
