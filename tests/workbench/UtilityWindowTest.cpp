#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QSet>
#include <QTest>

#include "tests/workbench/WorkbenchTest.h"

namespace linewright {

namespace {

/** Types characters that need not be on an English keyboard. */
void TypeCharacters(QLineEdit& box, const QString& text) {
    for (const QChar character : text)
        QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, QString(character),
                            Qt::NoModifier);
}

class UtilityWindowTest : public WorkbenchTest {};

TEST_F(UtilityWindowTest, EveryTypeShowsItsDescriptionAndWhatItOffers) {
    const QSet<QString> checkDigitOffered{"Code 39", "Interleaved 2 of 5",
                                          "Interleaved 2 of 5 Text"};
    const QSet<QString> ratioOffered{"Codabar", "Code 39", "Interleaved 2 of 5", "MSI Plessey"};
    Start();
    const DialogWindow& dialog = OpenUtility();
    auto& types = At<QComboBox>(dialog, kType);
    ASSERT_EQ(types.count(), 27);
    EXPECT_EQ(types.currentIndex(), 0);
    QSet<QString> descriptions;
    for (int i = 0; i < types.count(); ++i) {
        if (i > 0) QTest::keyClick(&types, Qt::Key_Down);
        const QString name = types.currentText();
        SCOPED_TRACE(qUtf8Printable(name));
        EXPECT_EQ(types.currentIndex(), i);
        const QString description = At<QPlainTextEdit>(dialog, kDescription).toPlainText();
        EXPECT_TRUE(description.startsWith("Used for: "));
        EXPECT_GT(description.count('\n'), 5);
        descriptions.insert(description);
        EXPECT_EQ(At<QCheckBox>(dialog, kCheckDigit).isEnabled(), checkDigitOffered.contains(name));
        EXPECT_EQ(At<QComboBox>(dialog, kRatio).isEnabled(), ratioOffered.contains(name));
        EXPECT_EQ(At<QLabel>(dialog, kRatioLabel).isEnabled(), ratioOffered.contains(name));
        EXPECT_EQ(At<QComboBox>(dialog, kRatio).currentIndex(), 0);
    }
    EXPECT_EQ(descriptions.size(), 16);
}

TEST_F(UtilityWindowTest, ChoosesATypeByMouseFromTheOpenList) {
    Start();
    const DialogWindow& dialog = OpenUtility();
    auto& types = At<QComboBox>(dialog, kType);
    QTest::mouseClick(&types, Qt::LeftButton);
    QAbstractItemView* const list = types.view();
    ASSERT_TRUE(list->isVisible());
    const QModelIndex item = types.model()->index(types.findText("EAN-8"), 0);
    list->scrollTo(item);
    // A click that follows the opening too closely belongs to it.
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(item).center());
    EXPECT_EQ(types.currentText(), "EAN-8");
    EXPECT_TRUE(At<QPlainTextEdit>(dialog, kDescription).toPlainText().contains("EAN-13"));
}

TEST_F(UtilityWindowTest, ConvertsByReturnAndStaysOpen) {
    Start();
    DialogWindow& dialog = OpenUtility();
    ChooseType(dialog, "EAN-13");
    TypeData(dialog, "4006381333931");
    QTest::keyClick(&At<QLineEdit>(dialog, kData), Qt::Key_Return);
    // EAN-13 as docs/fonts.md has it: the first digit chooses the number sets.
    EXPECT_EQ(At<QLineEdit>(dialog, kResult).text(), "Y(0A63IB*NNNTNL(");
    EXPECT_EQ(At<QLineEdit>(dialog, kData).text(), "400638133393");
    EXPECT_TRUE(dialog.isVisible());
    TypeData(dialog, "12");
    QTest::mouseClick(&At<QPushButton>(dialog, kOKButton), Qt::LeftButton);
    EXPECT_EQ(At<QLineEdit>(dialog, kData).text(), "000000000012");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_FALSE(dialog.isModal());
}

TEST_F(UtilityWindowTest, TheResultCanBeCopiedWithTheKeyboardAndNotChanged) {
    Start();
    const DialogWindow& dialog = OpenUtility();
    ChooseType(dialog, "EAN-13");
    TypeData(dialog, "400638133393");
    QTest::keyClick(&At<QLineEdit>(dialog, kData), Qt::Key_Return);
    auto& result = At<QLineEdit>(dialog, kResult);
    QTest::keyClicks(&result, "x");
    QTest::keyClick(&result, Qt::Key_Delete);
    QTest::keyClick(&result, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&result, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "Y(0A63IB*NNNTNL(");
}

TEST_F(UtilityWindowTest, CheckDigitAndRatioChangeTheResult) {
    Start();
    const DialogWindow& dialog = OpenUtility();
    ChooseType(dialog, "Code 39");
    TypeData(dialog, "FIX-42");
    QSet<QString> results;
    for (int check = 0; check < 2; ++check) {
        QTest::mouseClick(&At<QCheckBox>(dialog, kCheckDigit), Qt::LeftButton, {}, {8, 8});
        QTest::keyClick(&At<QComboBox>(dialog, kRatio), Qt::Key_Home);
        for (int ratio = 0; ratio < 3; ++ratio) {
            EXPECT_EQ(At<QComboBox>(dialog, kRatio).currentIndex(), ratio);
            QTest::keyClick(&At<QLineEdit>(dialog, kData), Qt::Key_Return);
            results.insert(At<QLineEdit>(dialog, kResult).text());
            QTest::keyClick(&At<QComboBox>(dialog, kRatio), Qt::Key_Down);
        }
    }
    EXPECT_EQ(results.size(), 6);
}

TEST_F(UtilityWindowTest, ADataErrorRaisesAnAlert) {
    Start();
    const DialogWindow& dialog = OpenUtility();
    ChooseType(dialog, "EAN-13");
    TypeData(dialog, "40O6");
    DuringModal<QMessageBox>(
        [&] { QTest::keyClick(&At<QLineEdit>(dialog, kData), Qt::Key_Return); },
        [](QMessageBox& alert) {
            EXPECT_EQ(alert.icon(), QMessageBox::Critical);
            EXPECT_EQ(alert.text(),
                      "The data contains characters that are not allowed in EAN-13.\n"
                      "Only the digits 0 to 9");
            QTest::keyClick(&alert, Qt::Key_Return);
        });
    EXPECT_EQ(At<QLineEdit>(dialog, kResult).text(), "** Barcode Data Error **");
    EXPECT_EQ(At<QLineEdit>(dialog, kData).text(), "40O6");
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(UtilityWindowTest, ThePreferencesHoldAlertsBack) {
    Start();
    const DialogWindow& dialog = OpenUtility();
    DuringModal<DialogWindow>(
        [&] { QTest::mouseClick(&At<QPushButton>(dialog, kPreferencesButton), Qt::LeftButton); },
        [](DialogWindow& preferences) {
            EXPECT_TRUE(preferences.isModal());
            QTest::keyClick(&At<QCheckBox>(preferences, kShowErrorAlerts), Qt::Key_Space);
            QTest::keyClick(&preferences, Qt::Key_Return);
        });
    ChooseType(dialog, "EAN-13");
    TypeData(dialog, "x");
    // A message box would stop this here.
    QTest::keyClick(&At<QLineEdit>(dialog, kData), Qt::Key_Return);
    EXPECT_EQ(At<QLineEdit>(dialog, kResult).text(), "** Barcode Data Error **");
}

TEST_F(UtilityWindowTest, TheDataFieldTakes255CharactersUpTo255AndBeepsAtOthers) {
    Start();
    const DialogWindow& dialog = OpenUtility();
    auto& data = At<QLineEdit>(dialog, kData);
    TypeData(dialog, "a");
    TypeCharacters(data, QString::fromUtf8("é\u00FF"));
    EXPECT_EQ(beeps, 0);
    TypeCharacters(data, QString(QChar(0x100)));
    EXPECT_EQ(beeps, 1);
    EXPECT_EQ(data.text(), QString::fromUtf8("aé\u00FF"));

    // In the middle, the cursor stays where it was.
    data.setCursorPosition(1);
    TypeCharacters(data, QString::fromUtf8("漢"));
    EXPECT_EQ(beeps, 2);
    EXPECT_EQ(data.cursorPosition(), 1);
    QTest::keyClicks(&data, "b");
    EXPECT_EQ(data.text(), QString::fromUtf8("abé\u00FF"));

    QApplication::clipboard()->setText(QString(254, '1'));
    QTest::keyClick(&data, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&data, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClicks(&data, "2");
    EXPECT_EQ(beeps, 2);
    QTest::keyClicks(&data, "3");
    EXPECT_EQ(beeps, 3);
    EXPECT_EQ(data.text(), QString(254, '1') + "2");

    QApplication::clipboard()->setText(QString::fromUtf8("1\U0001F60A2"));
    QTest::keyClick(&data, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&data, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(beeps, 4);
    EXPECT_EQ(data.text(), "12");
}

TEST_F(UtilityWindowTest, EscapeCloseButtonAndCloseBoxCloseIt) {
    const std::vector<std::function<void(DialogWindow&)>> ways{
        [](DialogWindow& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); },
        [](DialogWindow& dialog) {
            QTest::mouseClick(&At<QPushButton>(dialog, kCancelButton), Qt::LeftButton);
        },
        [](DialogWindow& dialog) { dialog.close(); },
    };
    Start();
    for (const auto& close : ways) {
        const QPointer<DialogWindow> dialog(&OpenUtility());
        close(*dialog);
        EXPECT_FALSE(dialog->isVisible());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(dialog.isNull());
    }
}

TEST_F(UtilityWindowTest, OffersTheLastDataAgain) {
    Start();
    {
        const DialogWindow& dialog = OpenUtility();
        EXPECT_EQ(At<QLineEdit>(dialog, kData).text(), "Test Data");
        ChooseType(dialog, "Code 128");
        TypeData(dialog, "once more");
        QTest::keyClick(&At<QLineEdit>(dialog, kData), Qt::Key_Return);
        QTest::keyClick(&At<QLineEdit>(dialog, kData), Qt::Key_Escape);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    const DialogWindow& dialog = OpenUtility();
    EXPECT_EQ(At<QComboBox>(dialog, kType).currentText(), "Code 128");
    EXPECT_EQ(At<QLineEdit>(dialog, kData).text(), "once more");
}

TEST_F(UtilityWindowTest, TheSpareButtonIsNotShown) {
    Start();
    EXPECT_EQ(OpenUtility().FindView(kSpareButton), nullptr);
}

TEST_F(UtilityWindowTest, TheKeyboardAloneReachesEverything) {
    Start();
    DialogWindow& dialog = OpenUtility();
    ChooseType(dialog, "Code 39");
    At<QComboBox>(dialog, kType).setFocus();
    const WidgetID order[]{kDescription,       kData,     kCheckDigit,   kRatio, kResult,
                           kPreferencesButton, kOKButton, kCancelButton, kType};
    for (const WidgetID id : order) {
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(dialog.focusWidget(), dialog.FindView(id)) << std::hex << id;
    }
    const std::pair<Qt::Key, WidgetID> mnemonics[]{
        {Qt::Key_A, kDescription}, {Qt::Key_D, kData}, {Qt::Key_R, kResult}};
    for (const auto& [key, id] : mnemonics) {
        QTest::keyClick(&dialog, key, Qt::AltModifier);
        EXPECT_EQ(dialog.focusWidget(), dialog.FindView(id)) << std::hex << id;
    }
}

TEST_F(UtilityWindowTest, ReturnConvertsFromTheDescriptionAndTheTypesToo) {
    Start();
    const DialogWindow& dialog = OpenUtility();
    ChooseType(dialog, "EAN-13");
    TypeData(dialog, "400638133393");
    for (const WidgetID id : {kDescription, kType, kResult}) {
        TypeData(dialog, "12");
        QWidget* const view = dialog.FindView(id);
        view->setFocus();
        QTest::keyClick(view, Qt::Key_Return);
        EXPECT_EQ(At<QLineEdit>(dialog, kData).text(), "000000000012") << std::hex << id;
    }
}

}  // namespace

}  // namespace linewright
