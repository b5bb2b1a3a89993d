#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QTest>

#include "tests/workbench/PageFixture.h"
#include "types/Dimensions.h"

namespace linewright {

namespace {

class SizeTest : public PageFixture {
  protected:
    void Set(const char* field, const QString& number) {
        auto& box = Named<QDoubleSpinBox>(field);
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, number);
        QTest::keyClick(&box, Qt::Key_Return);
    }
    double Shown(const char* field) { return Named<QDoubleSpinBox>(field).value(); }
    QString Sizes() { return Named<QLabel>("size").text(); }
};

TEST_F(SizeTest, ShowsTheUsualSizesInMillimetresAndPoints) {
    Start();
    Enter("EAN-13", "4006381333931");
    EXPECT_EQ(Shown("xDimension"), 0.33);
    EXPECT_EQ(Shown("magnification"), 100);
    EXPECT_EQ(Shown("height"), 22.85);
    EXPECT_EQ(Shown("quietZone"), 3.63);
    EXPECT_EQ(Shown("reduction"), 0);
    EXPECT_TRUE(Sizes().startsWith("37.29 × ")) << qUtf8Printable(Sizes());
    EXPECT_TRUE(Sizes().contains("(105.7 × ")) << qUtf8Printable(Sizes());
    EXPECT_FALSE(Named<QPushButton>("usual").isEnabled());
}

TEST_F(SizeTest, EachFieldChangesTheDrawing) {
    Start();
    Enter("Code 128", "SIZES");
    const double width = Drawing()->Width();
    Set("xDimension", "0.5");
    EXPECT_NEAR(Drawing()->Module(), 0.5 * kMillimetre, 1e-9);
    EXPECT_NEAR(Shown("magnification"), 100 * 0.5 / 0.254, 0.06);
    Set("magnification", "200");
    EXPECT_NEAR(Drawing()->Module(), 0.508 * kMillimetre, 1e-9);
    EXPECT_EQ(Shown("xDimension"), 0.508);
    Set("height", "20");
    EXPECT_NEAR(Drawing()->BarHeight(), 20 * kMillimetre, 1e-6);
    Set("quietZone", "0");
    EXPECT_NEAR(Drawing()->Width(), width - 20, 1e-6);
    const auto before = Drawing()->InDots(10).bars.front();
    Set("reduction", "10");
    const auto after = Drawing()->InDots(10).bars.front();
    EXPECT_LT(after.right - after.left, before.right - before.left);
    EXPECT_TRUE(Named<QPushButton>("usual").isEnabled());
    QTest::mouseClick(&Named<QPushButton>("usual"), Qt::LeftButton);
    EXPECT_NEAR(Drawing()->Module(), 0.254 * kMillimetre, 1e-9);
    EXPECT_NEAR(Drawing()->Width(), width, 1e-6);
    EXPECT_FALSE(Named<QPushButton>("usual").isEnabled());
}

TEST_F(SizeTest, ADeviceHasWholeDotsAModule) {
    Start();
    Enter("Code 128", "DOTS");
    Named<QComboBox>("resolution").setEditText("600");
    EXPECT_EQ(Drawing()->DotsPerInch(), 600);
    EXPECT_TRUE(Sizes().endsWith(", 6 dots")) << qUtf8Printable(Sizes());
    for (const char* const none : {"", "x", "5"}) {
        Named<QComboBox>("resolution").setEditText(none);
        EXPECT_FALSE(Drawing()->DotsPerInch()) << none;
    }
}

TEST_F(SizeTest, TextCanBeLeftOutWhereTheFontDoesNotPrintIt) {
    Start();
    Enter("Code 128", "TEXT");
    const double height = Drawing()->Height();
    auto& text = Named<QCheckBox>("text");
    EXPECT_TRUE(text.isChecked());
    QTest::keyClick(&text, Qt::Key_Space);
    EXPECT_LT(Drawing()->Height(), height);
    Enter("EAN-13", "4006381333931");
    EXPECT_FALSE(text.isEnabled());
    EXPECT_TRUE(text.isChecked());
    ChooseType("Code 128");
    EXPECT_FALSE(text.isChecked());
}

TEST_F(SizeTest, FieldsThatATypeHasNotAreGreyAndAskForNothing) {
    Start();
    Enter("Code 128", "1234");
    Set("height", "20");
    for (const auto& [type, data] : std::initializer_list<std::pair<const char*, const char*>>{
             {"Postnet", "555551237"}, {"Interleaved 2 of 5 Text", "1234"}}) {
        Enter(type, data);
        EXPECT_FALSE(Named<QDoubleSpinBox>("height").isEnabled()) << type;
        EXPECT_TRUE(Drawing().has_value()) << type << qUtf8Printable(Message());
    }
    EXPECT_FALSE(Named<QCheckBox>("bearer").isEnabled());
    ChooseType("Interleaved 2 of 5");
    EXPECT_TRUE(Named<QCheckBox>("bearer").isEnabled());
    EXPECT_EQ(Shown("height"), 20);
    ChooseType("EAN-13");
    EXPECT_TRUE(Named<QCheckBox>("marks").isEnabled());
}

TEST_F(SizeTest, TakesWhatAPresetSays) {
    Start();
    Enter("Code 128", "1234");
    Page().Sizes().SetWish({.magnification = 150,
                            .height = Length{50, true},
                            .quietZone = Length{12, true},
                            .isTextWanted = false,
                            .dotsPerInch = 300,
                            .isFitted = true});
    EXPECT_EQ(Shown("magnification"), 150);
    EXPECT_EQ(Drawing()->DotsPerInch(), 300);
    EXPECT_NEAR(Shown("height"), 50 * 0.381, 0.01);
    EXPECT_FALSE(Named<QCheckBox>("text").isChecked());
    // In X-dimensions: with another one they are others.
    Set("xDimension", "0.5");
    EXPECT_NEAR(Shown("height"), 25, 0.01);
}

TEST_F(SizeTest, SaysWhySizesCannotBeHad) {
    Start();
    Enter("Code 128", "1234");
    Set("height", "400");
    EXPECT_FALSE(Drawing().has_value());
    EXPECT_TRUE(Message().startsWith("Error: The bars can be ")) << qUtf8Printable(Message());
    Set("height", "20");
    EXPECT_TRUE(Drawing().has_value());
}

}  // namespace

}  // namespace linewright
