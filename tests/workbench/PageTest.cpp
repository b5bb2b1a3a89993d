#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QSpinBox>
#include <QTest>
#include <QWheelEvent>

#include "tests/workbench/PageFixture.h"
#include "text/FontText.h"
#include "types/BarcodeTypes.h"

namespace linewright {

namespace {

class PageTest : public PageFixture {};

TEST_F(PageTest, BeginsWithABarcodeThatScans) {
    Start();
    EXPECT_EQ(ChosenType(), "EAN-13");
    EXPECT_TRUE(Drawing().has_value());
    EXPECT_EQ(Verdict(), "Scans");
    EXPECT_EQ(VerdictTone(), Tone::kGood);
    EXPECT_EQ(Message(), "");
}

TEST_F(PageTest, TheFontTextIsCopied) {
    Start();
    Enter("EAN-13", "400638133393");
    EXPECT_EQ(Copied(), "Y(0A63IB*NNNTNL(");
    EXPECT_TRUE(Named<QLabel>("font").text().startsWith("Linewright EAN UPC, "));
}

TEST_F(PageTest, ReturnInTheDataCopiesTheFontText) {
    Start();
    Enter("EAN-13", "400638133393");
    QApplication::clipboard()->clear();
    QTest::keyClick(&Named<QLineEdit>("data"), Qt::Key_Return);
    EXPECT_EQ(QApplication::clipboard()->text(), "Y(0A63IB*NNNTNL(");
}

TEST_F(PageTest, SaysWhatIsWrongAndWhatTheTypeTakesWhileTheDataIs) {
    Start();
    // An alert would stop this here.
    Enter("EAN-13", "400638133393O");
    EXPECT_EQ(Message(),
              "Refused: Only the digits 0 to 9. EAN-13 takes: 12 digits, without the check digit. "
              "EAN-13 also takes fewer digits, or 13 with the check digit.");
    EXPECT_FALSE(Drawing().has_value());
    EXPECT_EQ(Verdict(), "Refused");
    EXPECT_EQ(VerdictTone(), Tone::kBad);
    for (const char* const name : {"copy", "copyAs", "export"})
        EXPECT_FALSE(Named<QPushButton>(name).isEnabled()) << name;
    QTest::keyClick(&Named<QLineEdit>("data"), Qt::Key_Backspace);
    EXPECT_EQ(Message(), "");
    EXPECT_TRUE(Drawing().has_value());
    for (const char* const name : {"copy", "copyAs", "export"})
        EXPECT_TRUE(Named<QPushButton>(name).isEnabled()) << name;
}

// What is said of a pair of types that share their description.
TEST_F(PageTest, SaysOfATypeOnlyWhatIsItsOwn) {
    Start("deDE");
    Enter("EAN-13 (klassisch)", "x");
    EXPECT_TRUE(Message().contains("Add-on")) << qUtf8Printable(Message());
    EXPECT_FALSE(Message().contains("weniger Stellen"));
    Enter("EAN-13", "x");
    EXPECT_FALSE(Message().contains("Add-on"));
    EXPECT_TRUE(Message().contains("weniger Stellen"));
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
    EXPECT_EQ(Verdict(), "Scans");
    Enter("Code 39 (Classic)", "A");
    EXPECT_FALSE(Named<QCheckBox>("checkDigit").isEnabled());
    EXPECT_FALSE(Named<QComboBox>("ratio").isEnabled());
}

TEST_F(PageTest, TheCheckDigitBoxSaysWhatTheTypeDoes) {
    Start();
    const std::pair<const char*, Qt::CheckState> rows[]{
        {"EAN-13 (Classic)", Qt::Checked},           {"EAN-13", Qt::Checked},
        {"Postnet (Classic)", Qt::Checked},          {"Code 128", Qt::Unchecked},
        {"Code 39 (Classic)", Qt::PartiallyChecked}, {"Codabar", Qt::Unchecked},
    };
    for (const auto& [name, state] : rows) {
        ChooseType(name);
        EXPECT_EQ(Named<QCheckBox>("checkDigit").checkState(), state) << name;
        EXPECT_FALSE(Named<QCheckBox>("checkDigit").isEnabled()) << name;
        EXPECT_FALSE(Named<QCheckBox>("checkDigit").toolTip().isEmpty()) << name;
    }
}

// The box of a type that does not offer it changes nothing of its font string.
TEST_F(PageTest, EveryTypeMakesItsSampleAsTheUtilityDoes) {
    Start();
    for (const BarcodeType& type : kBarcodeTypes) {
        const TypeTexts* texts = nullptr;
        Service& service = workbench->PlugIn();
        const std::vector<TypeTexts> all = TextsOfTypes(service);
        for (const TypeTexts& row : all) texts = row.type == &type ? &row : texts;
        ASSERT_NE(texts, nullptr);
        ChooseType(texts->name);
        TypeIn("");
        QTest::mouseClick(&Named<QPushButton>("sample"), Qt::LeftButton);
        EXPECT_EQ(Named<QLineEdit>("data").text(), texts->sample);
        const EncodeAnswer answer =
            service.Encode({.typeName = std::string(type.name),
                            .data = texts->sample.toStdString(),
                            .checkCharacter = static_cast<uint8>(type.optionFlags[1])});
        ASSERT_TRUE(Drawing().has_value()) << qUtf8Printable(texts->name + Message());
        EXPECT_EQ(Copied(), QString::fromStdString(FontText(answer.bytes)))
            << qUtf8Printable(texts->name);
    }
}

TEST_F(PageTest, ShowsTheBarsOfTheRendererAtItsZoom) {
    Start();
    Enter("Code 128", "Zoom");
    auto& view = Named<BarcodeView>("drawing");
    for (const int zoom : {1, 2, 5}) {
        Named<QSpinBox>("zoom").setValue(zoom);
        const GreyRaster raster = view.Drawing()->Raster(zoom);
        EXPECT_EQ(view.minimumSize(), QSize(raster.width, raster.height));
        const QImage shown = view.grab().toImage().convertToFormat(QImage::Format_Grayscale8);
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

TEST_F(PageTest, ZoomsByKeysByTheWheelAndToFit) {
    Start();
    Enter("Code 128", "Zoom");
    auto& zoom = Named<QSpinBox>("zoom");
    auto& area = Named<DrawingArea>("area");
    zoom.setValue(3);
    QTest::keyClick(&workbench->Window(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(zoom.value(), 4);
    QTest::keyClick(&workbench->Window(), Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(zoom.value(), 3);
    const auto turn = [&](int angle, Qt::KeyboardModifiers keys) {
        const QPointF place = area.viewport()->rect().center();
        QWheelEvent event(place, area.viewport()->mapToGlobal(place), {}, {0, angle}, Qt::NoButton,
                          keys, Qt::NoScrollPhase, false);
        QApplication::sendEvent(area.viewport(), &event);
    };
    turn(120, Qt::ControlModifier);
    EXPECT_EQ(zoom.value(), 4);
    turn(-120, Qt::ControlModifier);
    turn(-120, Qt::NoModifier);
    EXPECT_EQ(zoom.value(), 3);
    QTest::mouseClick(&Named<QPushButton>("fit"), Qt::LeftButton);
    const int fitting = zoom.value();
    const auto& view = Named<BarcodeView>("drawing");
    EXPECT_LE(view.minimumWidth(), area.maximumViewportSize().width());
    EXPECT_LE(view.minimumHeight(), area.maximumViewportSize().height());
    TypeIn("A much longer text that wants more room than the other one had");
    EXPECT_LT(zoom.value(), fitting);
    EXPECT_TRUE(Named<QPushButton>("fit").isChecked());
    EXPECT_TRUE(Named<QLabel>("percent").text().contains("% of paper size"));
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
    Verdict();
    EXPECT_NE(VerdictTone(), Tone::kBad);
}

TEST_F(PageTest, FindsWhatWasThereAgainAfterARestart) {
    Start();
    Enter("Code 128", "again");
    Named<QSpinBox>("zoom").setValue(2);
    Named<QDoubleSpinBox>("xDimension").setValue(0.5);
    Start("deDE");
    EXPECT_EQ(ChosenType(), "Code 128");
    EXPECT_EQ(Named<QLineEdit>("data").text(), "again");
    EXPECT_EQ(Named<QSpinBox>("zoom").value(), 2);
    EXPECT_EQ(Named<QDoubleSpinBox>("xDimension").value(), 0.5);
    EXPECT_EQ(Verdict(), "Lesbar");
}

TEST_F(PageTest, FitsAtFirstAndRemembersWhetherItDoes) {
    Start();
    EXPECT_TRUE(Named<QPushButton>("fit").isChecked());
    Start();
    EXPECT_TRUE(Named<QPushButton>("fit").isChecked());
    QTest::mouseClick(&Named<QPushButton>("fit"), Qt::LeftButton);
    Start();
    EXPECT_FALSE(Named<QPushButton>("fit").isChecked());
}

TEST_F(PageTest, SaysWhereTheFontsAreNot) {
    Start("enUS", folder.path());
    EXPECT_TRUE(Message().startsWith("Error: ")) << qUtf8Printable(Message());
    EXPECT_TRUE(Message().contains(folder.path())) << qUtf8Printable(Message());
    EXPECT_EQ(Verdict(), "Not drawn");
    EXPECT_FALSE(Named<QPushButton>("export").isEnabled());
}

TEST_F(PageTest, ACellLosesItsLineBreakAndSeveralAreNotTaken) {
    Start();
    Enter("Code 128", "AB");
    auto& data = Named<QLineEdit>("data");
    for (const char* const cell : {"12\n", "12\r\n", "12"}) {
        TypeIn("AB");
        data.setCursorPosition(1);
        Paste(QLatin1String(cell));
        EXPECT_EQ(data.text(), "A12B");
        EXPECT_EQ(data.cursorPosition(), 3);
    }
    // The cell's first character is the one that stands behind it.
    TypeIn("A");
    data.setCursorPosition(0);
    Paste("A\n");
    EXPECT_EQ(data.text(), "AA");
    for (const char* const cells : {"1\n2\n", "1\n2", "1\t2", "\n1"}) {
        TypeIn("AB");
        Paste(QLatin1String(cells));
        EXPECT_EQ(data.text(), "AB") << cells;
    }
}

}  // namespace

}  // namespace linewright
