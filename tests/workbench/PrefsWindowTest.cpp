#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTest>

#include "tests/workbench/WorkbenchTest.h"

namespace linewright {

namespace {

bool OffersItem(const QComboBox& popUp, int item) {
    return popUp.model()->flags(popUp.model()->index(item, 0)).testFlag(Qt::ItemIsEnabled);
}

/** Chooses an item as arrow keys do. */
void Choose(QComboBox& popUp, int item) {
    QTest::keyClick(&popUp, Qt::Key_Home);
    for (int i = 0; i < item; ++i) QTest::keyClick(&popUp, Qt::Key_Down);
    EXPECT_EQ(popUp.currentIndex(), item);
}

class PrefsWindowTest : public WorkbenchTest {};

TEST_F(PrefsWindowTest, ShowsTheDefaults) {
    Start();
    UsePreferences([](DialogWindow& dialog) {
        EXPECT_TRUE(dialog.isModal());
        EXPECT_EQ(dialog.windowTitle(), "Linewright Preferences");
        EXPECT_EQ(At<QComboBox>(dialog, kCode39Check).currentText(), "Modulo 43");
        EXPECT_TRUE(At<QCheckBox>(dialog, kCode39Asterisk).isChecked());
        EXPECT_TRUE(At<QCheckBox>(dialog, kI2of5CheckDigit).isChecked());
        EXPECT_EQ(At<QComboBox>(dialog, kMsiFirstCheck).currentText(), "Modulo 10");
        EXPECT_EQ(At<QComboBox>(dialog, kMsiSecondCheck).currentText(), "None");
        EXPECT_TRUE(At<QCheckBox>(dialog, kShowErrorAlerts).isChecked());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
}

TEST_F(PrefsWindowTest, AppliesByReturnAndFindsThemAgainAfterARestart) {
    Start();
    UsePreferences([](DialogWindow& dialog) {
        Choose(At<QComboBox>(dialog, kCode39Check), 0);
        QTest::keyClick(&At<QCheckBox>(dialog, kCode39Asterisk), Qt::Key_Space);
        QTest::keyClick(&dialog, Qt::Key_I, Qt::AltModifier);
        // It is seen going down and up.
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return !At<QCheckBox>(dialog, kI2of5CheckDigit).isChecked(); }, 2000));
        Choose(At<QComboBox>(dialog, kMsiFirstCheck), 2);
        Choose(At<QComboBox>(dialog, kMsiSecondCheck), 1);
        QTest::keyClick(&At<QComboBox>(dialog, kMsiSecondCheck), Qt::Key_Return);
    });
    Start();
    UsePreferences([](DialogWindow& dialog) {
        EXPECT_EQ(At<QComboBox>(dialog, kCode39Check).currentText(), "None");
        EXPECT_FALSE(At<QCheckBox>(dialog, kCode39Asterisk).isChecked());
        EXPECT_FALSE(At<QCheckBox>(dialog, kI2of5CheckDigit).isChecked());
        EXPECT_EQ(At<QComboBox>(dialog, kMsiFirstCheck).currentText(), "Modulo 11");
        EXPECT_EQ(At<QComboBox>(dialog, kMsiSecondCheck).currentText(), "Modulo 10");
        EXPECT_TRUE(At<QCheckBox>(dialog, kShowErrorAlerts).isChecked());
        QTest::mouseClick(&At<QPushButton>(dialog, kOKButton), Qt::LeftButton);
    });
}

TEST_F(PrefsWindowTest, EscapeCancelButtonAndCloseBoxChangeNothing) {
    const std::vector<std::function<void(DialogWindow&)>> ways{
        [](DialogWindow& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); },
        [](DialogWindow& dialog) {
            QTest::mouseClick(&At<QPushButton>(dialog, kCancelButton), Qt::LeftButton);
        },
        [](DialogWindow& dialog) { dialog.close(); },
    };
    Start();
    for (const auto& close : ways) {
        UsePreferences([&](DialogWindow& dialog) {
            Choose(At<QComboBox>(dialog, kCode39Check), 1);
            QTest::keyClick(&At<QCheckBox>(dialog, kI2of5CheckDigit), Qt::Key_Space);
            EXPECT_FALSE(At<QCheckBox>(dialog, kI2of5CheckDigit).isChecked());
            close(dialog);
        });
        UsePreferences([](DialogWindow& dialog) {
            EXPECT_EQ(At<QComboBox>(dialog, kCode39Check).currentText(), "Modulo 43");
            EXPECT_TRUE(At<QCheckBox>(dialog, kI2of5CheckDigit).isChecked());
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
    }
}

TEST_F(PrefsWindowTest, TheSecondMsiCheckDigitFollowsTheFirst) {
    Start();
    UsePreferences([](DialogWindow& dialog) {
        auto& first = At<QComboBox>(dialog, kMsiFirstCheck);
        auto& second = At<QComboBox>(dialog, kMsiSecondCheck);
        EXPECT_TRUE(second.isEnabled());
        EXPECT_TRUE(OffersItem(second, 1));
        EXPECT_FALSE(OffersItem(second, 2));
        Choose(second, 1);
        // Modulo 11 is refused after modulo 10.
        QTest::keyClick(&second, Qt::Key_Down);
        EXPECT_EQ(second.currentIndex(), 1);
        QTest::keyClick(&first, Qt::Key_Home);
        EXPECT_EQ(first.currentText(), "None");
        EXPECT_EQ(second.currentText(), "None");
        EXPECT_FALSE(second.isEnabled());
        Choose(first, 2);
        EXPECT_TRUE(second.isEnabled());
        EXPECT_EQ(second.currentText(), "None");
        EXPECT_FALSE(OffersItem(second, 2));
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
}

TEST_F(PrefsWindowTest, TheKeyboardAloneReachesEverything) {
    Start();
    UsePreferences([](DialogWindow& dialog) {
        const WidgetID order[]{kCode39Asterisk,  kI2of5CheckDigit, kMsiFirstCheck, kMsiSecondCheck,
                               kShowErrorAlerts, kOKButton,        kCancelButton,  kCode39Check};
        EXPECT_EQ(dialog.focusWidget(), dialog.FindView(kCode39Check));
        for (const WidgetID id : order) {
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
            EXPECT_EQ(dialog.focusWidget(), dialog.FindView(id)) << std::hex << id;
        }
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
}

}  // namespace

}  // namespace linewright
