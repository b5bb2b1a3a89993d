#include <gtest/gtest.h>

#include <cstddef>
#include <ostream>

#include "views/DialogLayout.h"
#include "views/StatedMeasures.h"

namespace linewright {

void PrintTo(const LayoutBox& box, std::ostream* out) {
    *out << box.left << ' ' << box.top << ' ' << box.width << ' ' << box.height;
}

namespace {

using host::WidgetKind;
using host::WidgetPlace;

LayoutWidget Label(int32 row, int width) {
    return {WidgetKind::kLabel, {.row = row}, {width, 10}};
}

LayoutWidget EditBox(int32 row, int width) {
    return {WidgetKind::kEditBox, {.row = row, .column = 1}, {width, 20}};
}

LayoutWidget CheckBox(int32 row, int32 column, int width) {
    return {WidgetKind::kCheckBox,
            {.row = row, .column = column, .spansRow = column == 0},
            {width, 10}};
}

LayoutWidget Description(int32 row) {
    return {WidgetKind::kDescription, {.row = row, .spansRow = true}, {100, 100}};
}

LayoutWidget Button(int width, bool isDefault = false) {
    return {WidgetKind::kButton, {.group = WidgetPlace::kButtonRow}, {width, 20}, isDefault};
}

LayoutWidget InGroup(int32 group, LayoutWidget widget) {
    widget.place.group = group;
    return widget;
}

constexpr LayoutGroup kPlain{};
constexpr LayoutGroup kFramed{
    .isFramed = true, .left = 1, .top = 15, .right = 2, .bottom = 3, .minimumWidth = 40};

TEST(DialogLayoutTest, ALabelStandsInTheMiddleOfItsRowAndTheBoxBesideItFillsTheRest) {
    const DialogLayout layout = LayOut({kPlain}, {Label(0, 30), EditBox(0, 50), Button(120, true)});
    EXPECT_EQ(layout.widgets[0], (LayoutBox{16, 21, 30, 10}));
    EXPECT_EQ(layout.widgets[1], (LayoutBox{58, 16, 78, 20}));
    EXPECT_EQ(layout.widgets[2], (LayoutBox{16, 52, 120, 20}));
    EXPECT_EQ(layout.groups[0], (LayoutBox{16, 16, 120, 20}));
    EXPECT_EQ(layout.size.width, 152);
    EXPECT_EQ(layout.size.height, 88);
}

TEST(DialogLayoutTest, TheLabelsOfAllGroupsHaveOneWidth) {
    const DialogLayout layout =
        LayOut({kPlain, kPlain}, {Label(0, 30), EditBox(0, 50), InGroup(1, Label(0, 60)),
                                  InGroup(1, EditBox(0, 50)), Button(10, true)});
    EXPECT_EQ(layout.widgets[1].left, 16 + 60 + 12);
    EXPECT_EQ(layout.widgets[3].left, 16 + 60 + 12);
    EXPECT_EQ(layout.widgets[3].top, 16 + 20 + 16);
}

TEST(DialogLayoutTest, ALabelThatSpansItsRowMakesNoColumnWider) {
    LayoutWidget wide = Label(0, 200);
    wide.place.spansRow = true;
    const DialogLayout layout =
        LayOut({kPlain}, {wide, Label(1, 30), EditBox(1, 50), Button(10, true)});
    EXPECT_EQ(layout.widgets[0], (LayoutBox{16, 16, 200, 10}));
    EXPECT_EQ(layout.widgets[2], (LayoutBox{58, 34, 158, 20}));
}

TEST(DialogLayoutTest, ACheckBoxIsAsWideAsItsTextAndStandsUnderTheWidgetsWhereItIsTo) {
    const DialogLayout layout = LayOut({kPlain}, {Label(0, 30), EditBox(0, 90), CheckBox(1, 1, 40),
                                                  CheckBox(2, 0, 45), Button(10)});
    EXPECT_EQ(layout.widgets[2], (LayoutBox{58, 44, 40, 10}));
    EXPECT_EQ(layout.widgets[3], (LayoutBox{16, 62, 45, 10}));
}

TEST(DialogLayoutTest, AFrameSurroundsItsRows) {
    const DialogLayout layout = LayOut({kFramed}, {CheckBox(0, 0, 50), Button(10, true)});
    EXPECT_EQ(layout.widgets[0], (LayoutBox{16 + 1 + 12, 16 + 15 + 8, 50, 10}));
    EXPECT_EQ(layout.groups[0], (LayoutBox{16, 16, 1 + 12 + 50 + 12 + 2, 15 + 8 + 10 + 12 + 3}));
    EXPECT_EQ(layout.size.width, 16 + 77 + 16);
}

TEST(DialogLayoutTest, ATitleWidensItsFrame) {
    LayoutGroup group = kFramed;
    group.minimumWidth = 300;
    const DialogLayout layout = LayOut({group}, {CheckBox(0, 0, 50), Button(10, true)});
    EXPECT_EQ(layout.groups[0].width, 300);
    EXPECT_EQ(layout.widgets[0].width, 50);
}

TEST(DialogLayoutTest, TheDefaultButtonAndThoseBehindStandOnTheRight) {
    const DialogLayout layout =
        LayOut({kPlain}, {EditBox(0, 300), Button(30), Button(40), Button(50, true), Button(60)});
    const int right = layout.size.width - 16;
    EXPECT_EQ(layout.widgets[1].left, 16);
    EXPECT_EQ(layout.widgets[2].left, 16 + 30 + 8);
    EXPECT_EQ(layout.widgets[3].left, right - 60 - 8 - 50);
    EXPECT_EQ(layout.widgets[4].left, right - 60);
}

TEST(DialogLayoutTest, AllButtonsHaveRoomBesideEachOther) {
    const DialogLayout layout =
        LayOut({kPlain}, {EditBox(0, 10), Button(30), Button(50, true), Button(60)});
    EXPECT_EQ(layout.size.width, 16 + 30 + 8 + 50 + 8 + 60 + 16);
    EXPECT_EQ(layout.widgets[2].left, 16 + 30 + 8);
}

TEST(DialogLayoutTest, ALargerDialogGivesTheDescriptionTheHeightAndAllThatFillItTheWidth) {
    const std::vector<LayoutWidget> widgets{Description(0), Label(1, 30), EditBox(1, 50),
                                            CheckBox(2, 0, 40), Button(10, true)};
    const DialogLayout small = LayOut({kPlain}, widgets);
    const DialogLayout large =
        LayOut({kPlain}, widgets, {small.size.width + 7, small.size.height + 9});
    EXPECT_EQ(large.size.width, small.size.width + 7);
    EXPECT_EQ(large.size.height, small.size.height + 9);
    EXPECT_EQ(large.widgets[0], (LayoutBox{16, 16, 107, 109}));
    EXPECT_EQ(large.widgets[2].width, small.widgets[2].width + 7);
    EXPECT_EQ(large.widgets[2].height, small.widgets[2].height);
    EXPECT_EQ(large.widgets[2].top, small.widgets[2].top + 9);
    EXPECT_EQ(large.widgets[3].width, 40);
    EXPECT_EQ(large.groups[0].height, small.groups[0].height + 9);
}

TEST(DialogLayoutTest, NothingIsSmallerThanItNeeds) {
    const std::vector<LayoutWidget> widgets{Description(0), Button(10, true)};
    const DialogLayout layout = LayOut({kPlain}, widgets, {20, 20});
    EXPECT_EQ(layout.widgets[0], (LayoutBox{16, 16, 100, 100}));
}

TEST(StatedMeasuresTest, AWidthIsTheSumOfItsCharactersEachOnAWholePixel) {
    // In units of which an em of 12 pixels has 2048
    const auto onPixels = [](int units) { return (units * 12 + 2047) / 2048; };
    EXPECT_EQ(StatedWidth(U" "), onPixels(651));
    EXPECT_EQ(StatedWidth(U"A"), onPixels(1401));
    EXPECT_EQ(StatedWidth(U"~"), onPixels(1716));
    EXPECT_EQ(StatedWidth(U"\u00A0"), onPixels(651));
    EXPECT_EQ(StatedWidth(U"ÿÿ"), 2 * onPixels(1212));
    EXPECT_EQ(StatedWidth(U"種類"), 24);
    EXPECT_EQ(StatedWidth(U""), 0);
    EXPECT_EQ(StatedWidth(U"&Type"), StatedWidth(U"Type"));
}

TEST(StatedMeasuresTest, APopUpHasRoomForItsWidestItem) {
    const LayoutSize narrow = StatedSize(WidgetKind::kPopUp, {U"i", U"ii"});
    const LayoutSize wide = StatedSize(WidgetKind::kPopUp, {U"i", U"WWW", U"ii"});
    EXPECT_EQ(wide.width - narrow.width, StatedWidth(U"WWW") - StatedWidth(U"ii"));
}

TEST(StatedMeasuresTest, AGroupHasAFrameWhereItHasATitle) {
    EXPECT_FALSE(StatedGroup(U"").isFramed);
    EXPECT_TRUE(StatedGroup(U"Alerts").isFramed);
    EXPECT_GT(StatedGroup(U"Alerts").minimumWidth, StatedWidth(U"Alerts"));
}

}  // namespace

}  // namespace linewright
