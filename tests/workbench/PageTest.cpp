#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QTest>

#include "tests/workbench/WorkbenchTest.h"
#include "workbench/BarcodePage.h"

namespace linewright {

namespace {

class PageTest : public WorkbenchTest {
  protected:
    BarcodePage& Page() { return dynamic_cast<BarcodePage&>(*workbench->Window().centralWidget()); }
    template <class View>
    View& Named(const char* name) {
        auto* const view = Page().findChild<View*>(QLatin1String(name));
        if (!view) throw std::invalid_argument(name);
        return *view;
    }
    BarcodeView& Drawn() { return dynamic_cast<BarcodeView&>(Named<QWidget>("drawing")); }

    /** Chooses a type and types data into the page. */
    void Enter(const QString& type, const QString& data) {
        auto& types = Named<QComboBox>("type");
        const int wanted = types.findText(type);
        ASSERT_GE(wanted, 0);
        QTest::keyClick(&types, Qt::Key_Home);
        for (int i = 0; i < wanted; ++i) QTest::keyClick(&types, Qt::Key_Down);
        auto& box = Named<QLineEdit>("data");
        QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&box, Qt::Key_Delete);
        QTest::keyClicks(&box, data);
    }
    QString Message() { return Named<QLabel>("message").text(); }
    QString Copied() {
        QTest::mouseClick(&Named<QPushButton>("copy"), Qt::LeftButton);
        return QApplication::clipboard()->text();
    }
};

TEST_F(PageTest, BeginsWithABarcodeThatScans) {
    Start();
    EXPECT_EQ(Named<QComboBox>("type").count(), 27);
    EXPECT_EQ(Named<QComboBox>("type").currentText(), "EAN-13");
    EXPECT_TRUE(Drawn().Drawing().has_value());
    EXPECT_EQ(Named<QLabel>("badge").text(), "Scans");
    EXPECT_EQ(Message(), "");
}

TEST_F(PageTest, TheFontTextIsCopied) {
    Start();
    Enter("EAN-13", "400638133393");
    EXPECT_EQ(Copied(), "Y(0A63IB*NNNTNL(");
    EXPECT_TRUE(Named<QLabel>("font").text().startsWith("Linewright EAN UPC, "));
}

TEST_F(PageTest, SaysWhatIsWrongWhileTheDataIs) {
    Start();
    // An alert would stop this here.
    Enter("EAN-13", "400638133393O");
    EXPECT_EQ(Message(), "Only the digits 0 to 9");
    EXPECT_FALSE(Drawn().Drawing().has_value());
    EXPECT_FALSE(Named<QLabel>("badge").isVisible());
    EXPECT_FALSE(Named<QPushButton>("copy").isEnabled());
    EXPECT_FALSE(Named<QPushButton>("export").isEnabled());
    QTest::keyClick(&Named<QLineEdit>("data"), Qt::Key_Backspace);
    EXPECT_EQ(Message(), "");
    EXPECT_TRUE(Drawn().Drawing().has_value());
    EXPECT_TRUE(Named<QPushButton>("copy").isEnabled());
}

TEST_F(PageTest, WarnsOfWhatIsMadeAllTheSame) {
    Start();
    // The check digit of 400638133393 is 1.
    Enter("EAN-13", "4006381333932");
    EXPECT_NE(Message(), "");
    EXPECT_TRUE(Drawn().Drawing().has_value());
    EXPECT_TRUE(Named<QPushButton>("copy").isEnabled());
}

TEST_F(PageTest, ATypeOffersItsOptionsAndBeginsWithItsOwn) {
    Start();
    Enter("Code 39", "A");
    EXPECT_TRUE(Named<QCheckBox>("checkDigit").isEnabled());
    EXPECT_TRUE(Named<QCheckBox>("checkDigit").isChecked());
    EXPECT_TRUE(Named<QComboBox>("ratio").isEnabled());
    const QString checked = Copied();
    QTest::keyClick(&Named<QCheckBox>("checkDigit"), Qt::Key_Space);
    const QString unchecked = Copied();
    EXPECT_LT(unchecked.size(), checked.size());
    QTest::keyClick(&Named<QComboBox>("ratio"), Qt::Key_End);
    EXPECT_NE(Copied(), unchecked);
    EXPECT_EQ(Named<QLabel>("badge").text(), "Scans");
    Enter("Code 39 (Classic)", "A");
    EXPECT_FALSE(Named<QCheckBox>("checkDigit").isEnabled());
    EXPECT_FALSE(Named<QComboBox>("ratio").isEnabled());
}

TEST_F(PageTest, EveryTypeIsDrawnOrSaysWhy) {
    Start();
    auto& types = Named<QComboBox>("type");
    QTest::keyClick(&types, Qt::Key_Home);
    for (int i = 0; i < types.count(); ++i) {
        if (i > 0) QTest::keyClick(&types, Qt::Key_Down);
        SCOPED_TRACE(qUtf8Printable(types.currentText()));
        EXPECT_EQ(types.currentIndex(), i);
        EXPECT_TRUE(Drawn().Drawing().has_value() || !Message().isEmpty());
        EXPECT_EQ(Named<QLabel>("badge").isVisible(), Drawn().Drawing().has_value());
    }
}

TEST_F(PageTest, TypesWithoutAScannerSaySo) {
    Start();
    Enter("MSI Plessey", "1234567");
    EXPECT_EQ(Named<QLabel>("badge").text(), "No scanner for this type");
}

TEST_F(PageTest, ShowsTheBarsOfTheRendererAtItsZoom) {
    Start();
    Enter("Code 128", "Zoom");
    const BarcodeView& view = Drawn();
    for (const int zoom : {1, 2, 5}) {
        Named<QSlider>("zoom").setValue(zoom);
        const GreyRaster raster = view.Drawing()->Raster(zoom);
        EXPECT_EQ(view.minimumSize(), QSize(raster.width, raster.height));
        const QImage shown = Drawn().grab().toImage().convertToFormat(QImage::Format_Grayscale8);
        const int left = (shown.width() - raster.width) / 2;
        const int top = (shown.height() - raster.height) / 2;
        const int row = raster.height / 3;
        int bars = 0;
        for (int x = 0; x < raster.width; ++x) {
            ASSERT_EQ(shown.constScanLine(top + row)[left + x], raster.At(x, row)) << x;
            bars += raster.At(x, row) == 0 ? 1 : 0;
        }
        EXPECT_GT(bars, 0);
    }
}

TEST_F(PageTest, WritesPdfSvgAndPng) {
    Start();
    const std::pair<const char*, QByteArray> kinds[]{
        {"b.pdf", "%PDF-"}, {"b.svg", "<svg"}, {"b.png", "\x89PNG"}};
    for (const auto& [name, beginning] : kinds) {
        const QString path = folder.filePath(name);
        DuringModal<QFileDialog>(
            [this] { QTest::mouseClick(&Named<QPushButton>("export"), Qt::LeftButton); },
            [&](QFileDialog& dialog) {
                auto& box = *dialog.findChild<QLineEdit*>();
                box.setText(path);
                QTest::keyClick(&box, Qt::Key_Return);
            });
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        EXPECT_TRUE(file.readAll().startsWith(beginning)) << name;
    }
    const QImage picture(folder.filePath("b.png"));
    // Whole pixels: nothing is grey along the bars.
    for (int x = 0; x < picture.width(); ++x) {
        const int grey = qGray(picture.pixel(x, picture.height() / 3));
        EXPECT_TRUE(grey == 0 || grey == 255) << x;
    }
    EXPECT_FALSE(Page().Export(folder.filePath("missing/b.pdf")));
}

TEST_F(PageTest, FollowsThePreferences) {
    Start();
    Enter("Code 39 (Classic)", "ABC");
    const QString before = Copied();
    UsePreferences([](DialogWindow& dialog) {
        QTest::keyClick(&At<QComboBox>(dialog, kCode39Check), Qt::Key_Home);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    workbench->Window().activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Copied() != before; }, 2000));
    EXPECT_EQ(Copied().size(), before.size() - 1);
}

// An alert would stop this here: once started, nothing of the page reads the preferences' file.
TEST_F(PageTest, GoesOnWhenThePreferencesFileIsSpoiltElsewhere) {
    Start();
    Enter("Code 39 (Classic)", "ABC");
    const QString before = Copied();
    QFile file(folder.filePath("Corvane/Config/QVT Linewright.prf"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    ASSERT_EQ(file.write("nonsense"), 8);
    file.close();
    Enter("Code 39 (Classic)", "ABC");
    EXPECT_EQ(Copied(), before);
    EXPECT_EQ(Named<QLabel>("badge").text(), "Scans");
}

TEST_F(PageTest, WarnsInTheLanguageOfTheWindow) {
    Start("deDE");
    Enter("EAN-13", "4006381333932");
    EXPECT_EQ(Message(), "die Prüfziffer 2 wurde durch die berechnete ersetzt, 1");
}

TEST_F(PageTest, FindsTypeAndDataAgainAfterARestart) {
    Start();
    Enter("Code 128", "again");
    Start("deDE");
    EXPECT_EQ(Named<QComboBox>("type").currentText(), "Code 128");
    EXPECT_EQ(Named<QLineEdit>("data").text(), "again");
    EXPECT_EQ(Named<QLabel>("badge").text(), "Lesbar");
}

TEST_F(PageTest, TheKeyboardAloneReachesEverything) {
    Start();
    Enter("Code 39", "KEYS");
    Named<QComboBox>("type").setFocus();
    for (const char* const name :
         {"data", "ratio", "checkDigit", "area", "zoom", "copy", "export"}) {
        QTest::keyClick(workbench->Window().focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(workbench->Window().focusWidget()->objectName(), name);
    }
    const std::pair<Qt::Key, const char*> mnemonics[]{
        {Qt::Key_T, "type"}, {Qt::Key_D, "data"}, {Qt::Key_R, "ratio"}, {Qt::Key_Z, "zoom"}};
    for (const auto& [key, name] : mnemonics) {
        QTest::keyClick(&workbench->Window(), key, Qt::AltModifier);
        EXPECT_EQ(workbench->Window().focusWidget()->objectName(), name);
        EXPECT_FALSE(workbench->Window().focusWidget()->accessibleName().isEmpty());
    }
}

TEST_F(PageTest, SaysWhereTheFontsAreNot) {
    WorkbenchOptions options{.plugIn = QStringLiteral(LINEWRIGHT_PLUGIN),
                             .roamingFolder = folder.path(),
                             .appFolder = folder.path(),
                             .fonts = folder.path(),
                             .locale = "enUS",
                             .beep = {}};
    workbench.emplace(options);
    ASSERT_TRUE(workbench->Start());
    EXPECT_TRUE(Message().contains(folder.path())) << qUtf8Printable(Message());
    EXPECT_FALSE(Named<QPushButton>("export").isEnabled());
}

}  // namespace

}  // namespace linewright
