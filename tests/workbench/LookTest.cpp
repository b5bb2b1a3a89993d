#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QScrollArea>
#include <QTabWidget>
#include <QTest>

#include "tests/workbench/PageFixture.h"
#include "workbench/Colours.h"
#include "workbench/ListPage.h"

namespace linewright {

namespace {

/** As desktops with a dark look have it. */
QPalette Dark() {
    QPalette palette(QColor(0x2B, 0x2B, 0x2B));
    palette.setColor(QPalette::Base, QColor(0x1E, 0x1E, 0x1E));
    palette.setColor(QPalette::Text, QColor(0xE6, 0xE6, 0xE6));
    palette.setColor(QPalette::WindowText, QColor(0xE6, 0xE6, 0xE6));
    palette.setColor(QPalette::ButtonText, QColor(0xE6, 0xE6, 0xE6));
    palette.setColor(QPalette::ToolTipBase, QColor(0x2B, 0x2B, 0x2B));
    palette.setColor(QPalette::ToolTipText, QColor(0xE6, 0xE6, 0xE6));
    palette.setColor(QPalette::PlaceholderText, QColor(0xA0, 0xA0, 0xA0));
    palette.setColor(QPalette::Highlight, QColor(0x3D, 0x7E, 0xC8));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x80));
    return palette;
}

struct Look {
    const char* locale;
    bool isDark;
};

class LookTest : public PageFixture, public testing::WithParamInterface<Look> {
  protected:
    LookTest() {
        if (GetParam().isDark) QApplication::setPalette(Dark());
    }
    ~LookTest() override {
        workbench.reset();
        QApplication::setPalette(before);
    }

    void Save(QWidget& window, const QString& name) const {
        const QDir pictures(LINEWRIGHT_PICTURES);
        ASSERT_TRUE(pictures.mkpath("."));
        // The picture is of a window at rest.
        QTest::qWait(50);
        const QString file =
            pictures.filePath(QStringLiteral("%1-%2-%3-%4.png")
                                  .arg(name, QLatin1String(GetParam().locale),
                                       QLatin1String(GetParam().isDark ? "dark" : "light"))
                                  .arg(100 * window.devicePixelRatioF()));
        EXPECT_TRUE(window.grab().save(file)) << qUtf8Printable(file);
    }

    QPalette before = QApplication::palette();
};

std::vector<Look> Looks() {
    std::vector<Look> looks;
    for (const char* const locale : {"enUS", "deDE", "frFR", "jaJP"}) {
        looks.push_back({locale, false});
        looks.push_back({locale, true});
    }
    return looks;
}

INSTANTIATE_TEST_SUITE_P(Looks, LookTest, testing::ValuesIn(Looks()), [](const auto& look) {
    return std::string(look.param.locale) + (look.param.isDark ? "Dark" : "Light");
});

TEST_P(LookTest, TextIsReadableAndPicturesAreTaken) {
    Start(QLatin1String(GetParam().locale));
    MainWindow& window = workbench->Window();
    window.resize(900, 600);
    const auto expectReadable = [&](const char* when) {
        const QColor ground = window.palette().color(QPalette::Window);
        for (const QLabel* const label : window.findChildren<QLabel*>()) {
            if (!label->isVisible() || !label->isEnabled() || label->text().isEmpty()) continue;
            EXPECT_GE(Contrast(label->palette().color(label->foregroundRole()), ground),
                      kReadableContrast)
                << when << qUtf8Printable(label->text());
        }
    };
    const std::tuple<const char*, const char*, const char*> states[]{
        {"scans", "ean13", "4006381333931"},
        {"amber", "ean13", "4006381333932"},
        {"refused", "ean13", "40O6"},
        {"empty", "ean13", ""},
        {"noscanner", "imb", "0123456709498765432101234567891"},
    };
    for (const auto& [name, type, data] : states) {
        auto& field = Named<QLineEdit>("filter");
        field.setText(QLatin1String(type));
        QTest::keyClick(&field, Qt::Key_Return);
        field.clear();
        TypeIn(QLatin1String(data));
        Verdict();
        expectReadable(name);
        Save(window, QStringLiteral("page-") + QLatin1String(name));
    }
    DialogWindow& utility = OpenUtility();
    linewright::ChooseType(utility, "EAN-13");
    TypeData(utility, "400638133393");
    QTest::keyClick(&At<QLineEdit>(utility, kData), Qt::Key_Return);
    Save(utility, QStringLiteral("utility"));
    utility.close();
    UsePreferences([this](DialogWindow& dialog) {
        Save(dialog, QStringLiteral("preferences"));
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    ChooseType("Code 128");
    TypeIn("1");
    DuringModal<QDialog>([this] { Action("export").trigger(); },
                         [this](QDialog& dialog) {
                             Save(dialog, QStringLiteral("export"));
                             QTest::keyClick(&dialog, Qt::Key_Escape);
                         });
    ClickMenu(kHelpMenu, 0);
    Save(*window.findChild<QDialog*>("help"), QStringLiteral("help"));
}

TEST_P(LookTest, TheListIsReadableAndItsPictureIsTaken) {
    Start(QLatin1String(GetParam().locale));
    MainWindow& window = workbench->Window();
    window.resize(QSize(900, 600).boundedTo(window.screen()->availableSize()));
    auto* const tabs = window.findChild<QTabWidget*>(QStringLiteral("pages"));
    tabs->setCurrentIndex(tabs->count() - 1);
    auto& page = dynamic_cast<ListPage&>(*tabs->currentWidget());
    Save(window, QStringLiteral("list-empty"));
    page.TakeCells(
        QStringLiteral("Shelf\tNumber\nPencil\t4006381333931\nPaper A4\t4012345678901\n"
                       "Ruler\t4006381333932\nErasers\t40O6381333931\n"
                       "Stapler\t400638133393\nFolder\t123\n"));
    page.findChild<QComboBox*>(QStringLiteral("dataColumn"))->setCurrentIndex(1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return page.Model().Count(RowState::kWaiting) == 0; }));
    for (const QLabel* const label : page.findChildren<QLabel*>()) {
        if (!label->isVisible() || label->text().isEmpty()) continue;
        const QPalette& palette = label->palette();
        EXPECT_GE(Contrast(palette.color(label->foregroundRole()),
                           palette.color(label->backgroundRole())),
                  kReadableContrast)
            << qUtf8Printable(label->text());
    }
    Save(window, QStringLiteral("list"));
}

TEST_P(LookTest, EveryToneIsReadableAndTonesDiffer) {
    const QPalette palette = GetParam().isDark ? Dark() : before;
    QSet<QRgb> colours;
    for (const Tone tone : {Tone::kNeutral, Tone::kGood, Tone::kWarning, Tone::kBad}) {
        const QColor colour = TextColour(tone, palette);
        EXPECT_GE(Contrast(colour, palette.color(QPalette::Window)), kReadableContrast);
        colours.insert(colour.rgb());
    }
    EXPECT_EQ(colours.size(), 4);
}

TEST(ContrastTest, IsThatOfTheGuidelines) {
    EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 1e-9);
    EXPECT_NEAR(Contrast(Qt::white, Qt::white), 1, 1e-9);
    EXPECT_NEAR(Contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
}

}  // namespace

}  // namespace linewright
