#include <QApplication>
#include <QClipboard>
#include <QMessageBox>
#include <QProcess>
#include <QScreen>
#include <QTest>

#include "tests/workbench/PageFixture.h"
#include "workbench/ExportDialog.h"

namespace linewright {

namespace {

/** What another program gets from the clipboard. */
QByteArray OnClipboard(const QString& type) {
    QProcess xclip;
    xclip.start("xclip", {"-selection", "clipboard", "-o", "-t", type});
    // The window has to answer meanwhile.
    EXPECT_TRUE(QTest::qWaitFor([&] { return xclip.state() == QProcess::NotRunning; }, 10000));
    return xclip.readAllStandardOutput();
}

/** On a real display with a window manager, where desktop.sh has made one. */
class DesktopTest : public PageFixture {
  protected:
    void SetUp() override {
        if (!qEnvironmentVariableIsSet("LINEWRIGHT_DESKTOP")) GTEST_SKIP() << "desktop.sh runs it";
        ASSERT_EQ(QGuiApplication::platformName(), "xcb");
        Start();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&workbench->Window()));
    }

    static void ExpectOnScreen(const QWidget& window) {
        const QRect screen = window.screen()->availableGeometry();
        EXPECT_TRUE(screen.contains(window.frameGeometry()))
            << window.frameGeometry().right() << ' ' << window.frameGeometry().bottom() << " of "
            << screen.right() << ' ' << screen.bottom() << qUtf8Printable(window.windowTitle());
        for (const QPushButton* const button : window.findChildren<QPushButton*>()) {
            if (!button->isVisible() || button->visibleRegion().isEmpty()) continue;
            const QRect place(button->mapToGlobal(QPoint()), button->size());
            EXPECT_TRUE(screen.contains(place)) << qUtf8Printable(button->text());
        }
    }
};

TEST_F(DesktopTest, TheDataHasTheFocusAndGetsItBackFromADialog) {
    EXPECT_EQ(QApplication::focusWidget(), &Named<QLineEdit>("data"));
    DialogWindow& utility = OpenUtility();
    EXPECT_EQ(QApplication::focusWidget(), utility.FindView(kData));
    linewright::ChooseType(utility, "EAN-13");
    TypeData(utility, "x");
    DuringModal<QMessageBox>(
        [&] { QTest::mouseClick(&At<QPushButton>(utility, kOKButton), Qt::LeftButton); },
        [](QMessageBox& alert) { QTest::keyClick(&alert, Qt::Key_Return); });
    ASSERT_TRUE(QTest::qWaitForWindowActive(&utility));
    EXPECT_EQ(QApplication::focusWidget(), utility.FindView(kData));
    utility.close();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&workbench->Window()));
    EXPECT_EQ(QApplication::focusWidget(), &Named<QLineEdit>("data"));
}

TEST_F(DesktopTest, OtherProgramsGetWhatIsCopied) {
    Enter("EAN-13", "400638133393");
    Copied();
    EXPECT_EQ(OnClipboard("UTF8_STRING"), "Y(0A63IB*NNNTNL(");
    Action("copySvg").trigger();
    EXPECT_TRUE(OnClipboard("image/svg+xml").contains("<svg"));
    Action("copyPdf").trigger();
    EXPECT_TRUE(OnClipboard("application/pdf").startsWith("%PDF-"));
    Action("copyPng").trigger();
    EXPECT_TRUE(OnClipboard("image/png").startsWith("\x89PNG"));
}

TEST_F(DesktopTest, ACellOfAnotherProgramLosesItsLineBreak) {
    ChooseType("Code 128");
    TypeIn("");
    QProcess xclip;
    xclip.start("xclip", {"-selection", "clipboard", "-i", "-quiet"});
    ASSERT_TRUE(xclip.waitForStarted());
    xclip.write("CELL\n");
    xclip.closeWriteChannel();
    ASSERT_TRUE(
        QTest::qWaitFor([] { return QApplication::clipboard()->text() == "CELL\n"; }, 10000));
    QTest::keyClick(&Named<QLineEdit>("data"), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Named<QLineEdit>("data").text(), "CELL");
    xclip.kill();
    xclip.waitForFinished();
}

TEST_F(DesktopTest, EverythingLiesOnTheScreen) {
    ExpectOnScreen(workbench->Window());
    for (const char* const name : {"copy", "copyAs", "export"})
        EXPECT_FALSE(Named<QPushButton>(name).visibleRegion().isEmpty()) << name;
    DialogWindow& utility = OpenUtility();
    QTest::qWait(200);
    ExpectOnScreen(utility);
    EXPECT_FALSE(At<QPushButton>(utility, kOKButton).visibleRegion().isEmpty());
    utility.close();
    UsePreferences([](DialogWindow& dialog) {
        QTest::qWait(200);
        ExpectOnScreen(dialog);
        EXPECT_FALSE(At<QPushButton>(dialog, kOKButton).visibleRegion().isEmpty());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    DuringModal<ExportDialog>([this] { Action("export").trigger(); },
                              [](ExportDialog& dialog) {
                                  QTest::qWait(200);
                                  ExpectOnScreen(dialog);
                                  QTest::keyClick(&dialog, Qt::Key_Escape);
                              });
}

}  // namespace

}  // namespace linewright
