#include <QFile>
#include <QMenuBar>
#include <QTest>

#include "tests/workbench/WorkbenchTest.h"

namespace linewright {

namespace {

QStringList MenuTexts(const MainWindow& window) {
    QStringList texts;
    for (const QAction* const menu : window.menuBar()->actions()) texts << menu->text();
    return texts;
}

class MainWindowTest : public WorkbenchTest {
  protected:
    /** Picks a language by its place in the menu, and waits for the change. */
    void PickLanguage(int entry) {
        ClickMenu(2, entry);
        QTest::qWait(0);
    }
};

TEST_F(MainWindowTest, HasThePlugInsMenuAmongItsOwn) {
    Start();
    EXPECT_EQ(MenuTexts(workbench->Window()), QStringList({"&File", "Li&newright", "L&anguage"}));
}

TEST_F(MainWindowTest, SwitchesTheLanguageAndRemembersIt) {
    Start(QString());
    PickLanguage(2);
    EXPECT_EQ(MenuTexts(workbench->Window()), QStringList({"&Fichier", "Li&newright", "L&angue"}));
    UsePreferences([](DialogWindow& dialog) {
        EXPECT_TRUE(dialog.windowTitle().contains(QString::fromUtf8("Préférences")))
            << qUtf8Printable(dialog.windowTitle());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    Start(QString());
    EXPECT_EQ(MenuTexts(workbench->Window()).first(), "&Fichier");
    PickLanguage(1);
    EXPECT_EQ(MenuTexts(workbench->Window()).first(), "&File");
}

TEST_F(MainWindowTest, ALanguageThatIsNotThereGivesWayToEnglish) {
    QSettings(folder.filePath("Workbench.ini"), QSettings::IniFormat).setValue("language", "xxXX");
    Start(QString());
    EXPECT_EQ(MenuTexts(workbench->Window()).first(), "&File");
}

TEST_F(MainWindowTest, OpenDialogsCloseWithTheHost) {
    Start();
    OpenUtility();
    PickLanguage(0);
    EXPECT_EQ(MenuTexts(workbench->Window()).first(), "&Datei");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(workbench->Window().findChildren<DialogWindow*>().isEmpty());
    OpenUtility();
}

TEST_F(MainWindowTest, WindowsKeepTheirPlaceAndSize) {
    Start();
    workbench->Window().setGeometry(40, 50, 640, 400);
    OpenUtility().resize(777, 666);
    workbench->Window().close();
    Start();
    EXPECT_EQ(workbench->Window().geometry(), QRect(40, 50, 640, 400));
    EXPECT_EQ(OpenUtility().size(), QSize(777, 666));
}

TEST_F(MainWindowTest, SaysWhyThePlugInDoesNotStart) {
    Workbench broken({.plugIn = folder.filePath("missing.so"),
                      .roamingFolder = folder.path(),
                      .appFolder = folder.path(),
                      .fonts = {},
                      .locale = "enUS",
                      .beep = {}});
    EXPECT_FALSE(broken.Start());
    EXPECT_TRUE(broken.Error().contains("missing.so"));
}

}  // namespace

}  // namespace linewright
