#include "tests/workbench/WorkbenchTest.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTimer>

namespace linewright {

namespace {

/** Whichever window became active when a menu or a list closed: keys go to this one now. */
void Activate(QWidget& window) {
    if (!QTest::qWaitForWindowActive(&window)) ADD_FAILURE() << "the window is not shown";
    QTest::qWait(0);
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; }));
}

}  // namespace

WorkbenchTest::~WorkbenchTest() {
    workbench.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void WorkbenchTest::Start(const QString& locale) {
    workbench.reset();
    workbench.emplace(WorkbenchOptions{.plugIn = QStringLiteral(LINEWRIGHT_PLUGIN),
                                       .roamingFolder = folder.path(),
                                       .appFolder = folder.path(),
                                       .fonts = QStringLiteral(LINEWRIGHT_FONTS),
                                       .locale = locale,
                                       .beep = [this] { ++beeps; }});
    ASSERT_TRUE(workbench->Start()) << qUtf8Printable(workbench->Error());
    workbench->Window().show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&workbench->Window()));
}

void WorkbenchTest::ClickMenu(int menu, int entry) {
    QMenuBar* const bar = workbench->Window().menuBar();
    QAction* const title = bar->actions().at(menu);
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(title).center());
    QMenu* const popUp = title->menu();
    ASSERT_TRUE(popUp->isVisible());
    QAction* const action = popUp->actions().at(entry);
    QTest::mouseClick(popUp, Qt::LeftButton, {}, popUp->actionGeometry(action).center());
}

DialogWindow& WorkbenchTest::OpenUtility() {
    ClickMenu(1, 0);
    const auto dialogs = workbench->Window().findChildren<DialogWindow*>();
    if (dialogs.isEmpty()) throw std::logic_error("the dialog does not open");
    Activate(*dialogs.last());
    return *dialogs.last();
}

void WorkbenchTest::UsePreferences(const std::function<void(DialogWindow&)>& use) {
    DuringModal<DialogWindow>([this] { ClickMenu(1, 1); }, use);
}

void WorkbenchTest::UseNextModal(const std::function<void(QWidget&)>& use) {
    QTimer::singleShot(0, [use] {
        QWidget* const modal = QApplication::activeModalWidget();
        ASSERT_NE(modal, nullptr);
        Activate(*modal);
        use(*modal);
        if (!modal->isVisible()) return;
        ADD_FAILURE() << "the modal window is open still";
        modal->hide();
    });
}

void ChooseType(const DialogWindow& dialog, const QString& text) {
    auto& types = At<QComboBox>(dialog, kType);
    const int wanted = types.findText(text);
    ASSERT_GE(wanted, 0) << qUtf8Printable(text);
    QTest::keyClick(&types, Qt::Key_Home);
    for (int i = 0; i < wanted; ++i) QTest::keyClick(&types, Qt::Key_Down);
    ASSERT_EQ(types.currentIndex(), wanted);
}

void TypeData(const DialogWindow& dialog, const QString& text) {
    auto& data = At<QLineEdit>(dialog, kData);
    data.setFocus();
    QTest::keyClick(&data, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&data, Qt::Key_Delete);
    QTest::keyClicks(&data, text);
}

}  // namespace linewright
