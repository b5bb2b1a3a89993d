#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QMenuBar>
#include <QMessageBox>
#include <QTest>
#include <QTextBrowser>

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
        ClickMenu(kLanguageMenu, entry);
        QTest::qWait(0);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

TEST_F(MainWindowTest, HasThePlugInsMenuAmongItsOwn) {
    Start();
    EXPECT_EQ(MenuTexts(workbench->Window()),
              QStringList({"&File", "&Edit", "&View", "Li&newright", "L&anguage", "&Help"}));
}

TEST_F(MainWindowTest, SwitchesTheLanguageAndRemembersIt) {
    Start(QString());
    PickLanguage(2);
    EXPECT_EQ(MenuTexts(workbench->Window()).first(), "&Fichier");
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

TEST_F(MainWindowTest, DialogsStayOpenInAnotherLanguageWithWhatTheyHold) {
    Start();
    {
        DialogWindow& dialog = OpenUtility();
        dialog.resize(700, 560);
        ChooseType(dialog, "Code 39");
        TypeData(dialog, "FIX-42");
        QTest::keyClick(&At<QComboBox>(dialog, kRatio), Qt::Key_End);
        QTest::mouseClick(&At<QCheckBox>(dialog, kCheckDigit), Qt::LeftButton, {}, {8, 8});
        QTest::keyClick(&At<QLineEdit>(dialog, kData), Qt::Key_Return);
    }
    const QString result = ResultLine(*OpenDialogs().first()).text();
    workbench->Window().activateWindow();
    PickLanguage(0);
    EXPECT_EQ(MenuTexts(workbench->Window()).first(), "&Datei");
    ASSERT_EQ(OpenDialogs().size(), 1);
    DialogWindow& dialog = *OpenDialogs().first();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.size(), QSize(700, 560));
    EXPECT_EQ(At<QComboBox>(dialog, kType).currentText(), "Code 39");
    EXPECT_EQ(At<QLineEdit>(dialog, kData).text(), "FIX-42");
    EXPECT_EQ(At<QComboBox>(dialog, kRatio).currentIndex(), 2);
    EXPECT_FALSE(At<QCheckBox>(dialog, kCheckDigit).isChecked());
    EXPECT_EQ(ResultLine(dialog).text(), result);
    EXPECT_TRUE(ResultLine(dialog).isEnabled());
    QTest::keyClick(&At<QLineEdit>(dialog, kData), Qt::Key_Return);
    EXPECT_EQ(ResultLine(dialog).text(), result);
}

TEST_F(MainWindowTest, TheLanguageThatIsThereAlreadyChangesNothing) {
    Start();
    const DialogWindow* const dialog = &OpenUtility();
    workbench->Window().activateWindow();
    PickLanguage(1);
    ASSERT_EQ(OpenDialogs().size(), 1);
    EXPECT_EQ(OpenDialogs().first(), dialog);
}

TEST_F(MainWindowTest, WindowsKeepTheirPlaceAndSize) {
    Start();
    workbench->Window().setGeometry(40, 50, 740, 500);
    OpenUtility().resize(777, 566);
    workbench->Window().close();
    Start();
    EXPECT_EQ(workbench->Window().geometry(), QRect(40, 50, 740, 500));
    EXPECT_EQ(OpenUtility().size(), QSize(777, 566));
}

TEST_F(MainWindowTest, TitlesSayTheProgramOnce) {
    Start();
    EXPECT_EQ(workbench->Window().windowTitle(), "Linewright");
    EXPECT_EQ(OpenUtility().windowTitle(), "Linewright Utility");
    EXPECT_EQ(QApplication::applicationDisplayName().isEmpty() ||
                  QApplication::applicationDisplayName() == QApplication::applicationName(),
              true);
}

TEST_F(MainWindowTest, HelpIsInTheLanguageOfTheWindow) {
    for (const auto& [locale, word] :
         std::initializer_list<std::pair<const char*, const char*>>{{"enUS", "Choose a type"},
                                                                    {"deDE", "Typ wählen"},
                                                                    {"frFR", "Choisissez"},
                                                                    {"jaJP", "種類を選び"}}) {
        Start(QLatin1String(locale));
        QTest::keyClick(&workbench->Window(), Qt::Key_F1);
        const auto* const help = workbench->Window().findChild<QDialog*>("help");
        ASSERT_NE(help, nullptr) << locale;
        const QString text = help->findChild<QTextBrowser*>()->toPlainText();
        EXPECT_TRUE(text.contains(QString::fromUtf8(word))) << qUtf8Printable(text);
    }
}

TEST_F(MainWindowTest, AboutHasTheVersions) {
    QApplication::setApplicationVersion("7.8.9");
    Start();
    DuringModal<QMessageBox>([this] { ClickMenu(kHelpMenu, 1); },
                             [](QMessageBox& box) {
                                 EXPECT_TRUE(box.text().contains("Linewright 7.8.9"));
                                 EXPECT_TRUE(box.text().contains(qVersion()));
                                 QTest::keyClick(&box, Qt::Key_Return);
                             });
    EXPECT_FALSE(workbench->Window().windowIcon().isNull());
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
