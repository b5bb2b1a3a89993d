#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

#include "documents/LineText.h"
#include "documents/ReadLayout.h"

namespace linewright {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

const std::vector<std::string> kColumns{"type", "data", "name", "price"};

/** A sheet of one's own, as the head of a layout. */
std::string Labels(const std::string& measures) {
    return "[labels]\ncolumns = 2\nrows = 3\nwidth = 60\nheight = \"4cm\"\n" + measures;
}

Layout Read(const std::string& content) {
    return ReadLayout(content, "labels.toml", kColumns);
}

/** What is wrong with a layout. */
std::string ProblemOf(const std::string& content) {
    try {
        Read(content);
    } catch (const LayoutFailure& failure) {
        return failure.what();
    }
    return "nothing is wrong";
}

TEST(LayoutTest, HasTheUsualSheetWhereNothingIsSaid) {
    const Layout layout = Read("");
    EXPECT_EQ(layout.sheet.name, "a4-2x7");
    EXPECT_FALSE(layout.isBeside);
    EXPECT_TRUE(layout.lines.empty());
}

TEST(LayoutTest, TakesASheetByItsName) {
    const Layout layout = Read("sheet = 'a4-list'\noutline = false # no ä\n");
    EXPECT_EQ(layout.sheet.columns, 1);
    EXPECT_TRUE(layout.isBeside);
    EXPECT_FALSE(layout.isOutlined);
}

TEST(LayoutTest, PutsASheetOfOnesOwnInTheMiddleOfItsPage) {
    const LabelSheet sheet = Read(Labels("column-pitch = \"70mm\"\n")).sheet;
    EXPECT_NEAR(sheet.left, 40 * kMillimetre, 1e-9);
    EXPECT_NEAR(sheet.top, 88.5 * kMillimetre, 1e-9);
    EXPECT_NEAR(sheet.columnPitch, 70 * kMillimetre, 1e-9);
    EXPECT_NEAR(sheet.rowPitch, 40 * kMillimetre, 1e-9);
}

TEST(LayoutTest, TakesLines) {
    const Layout layout = Read(
        "[[line]]\ntext = \"{name} {price}\"\nsize = 9.5\nbold = true\nalign = \"left\"\n"
        "[[line]]\nbarcode = true\n[[line]]\nreadable = true\nsize = \"3mm\"\n");
    ASSERT_EQ(layout.lines.size(), 3U);
    EXPECT_EQ(
        layout.lines[0],
        (LabelLine{
            .text = "{name} {price}", .size = 9.5, .isBold = true, .alignment = Alignment::kLeft}));
    EXPECT_EQ(layout.lines[1].content, LabelLine::Content::kBarcode);
    EXPECT_EQ(layout.lines[2].content, LabelLine::Content::kReadable);
    EXPECT_NEAR(layout.lines[2].size, 3 * kMillimetre, 1e-9);
}

TEST(LayoutTest, SaysWhatIsWrongWhere) {
    const std::string barcode = "[[line]]\nbarcode = true\n";
    const std::map<std::string, std::string> problems{
        {"sheet = \"a4-3x9\"", "line 1: there is no sheet \"a4-3x9\"; nearest: \"a4-3x6\""},
        {"\nsheets = 1", "line 2: there is no key \"sheets\"; nearest: \"sheet\""},
        {"sheet = 3", "line 1: \"sheet\" is a text in quotes"},
        {"sheet = \"a4-3x8\"\n" + Labels(""), "line 2: \"sheet\" and \"labels\" say the same"},
        {"labels = 1", "line 1: \"labels\" is a table: [labels]"},
        {"padding = \"wide\"", "line 1: \"padding\" is a length such as \"12.5mm\", from 0.00 mm"},
        {"padding = -1", "line 1: \"padding\" is a length"},
        {"padding = nan", "line 1: \"padding\" is a length"},
        {"padding = 1e300", "line 1: \"padding\" is a length"},
        {"padding = \"3x\"", "line 1: \"padding\" is a length"},
        {"beside = 1", "line 1: \"beside\" is true or false"},
        {"font = \"\"", "line 1: \"font\" is the name of a family"},
        {"[labels]\nrows = 2", "line 1: \"columns\" is missing"},
        {"[labels]\ncolumns = 0\nrows = 1", "line 2: \"columns\" is a whole number from 1 to 1000"},
        {"[labels]\ncolumns = -4\nrows = 1", "line 2: \"columns\" is a whole number"},
        {"[labels]\ncolumns = 2.0\nrows = 1", "line 2: \"columns\" is a whole number"},
        {"[labels]\ncolumns = 9000\nrows = 1", "line 2: \"columns\" is a whole number"},
        {"[labels]\ncolumns = 1\nrows = 1\nwidth = 4\nheight = 9", "line 4: \"width\" is a length"},
        {"[labels]\ncolumns = 1\nrows = 1\nwidth = inf\nheight = 9", "line 4: \"width\""},
        {Labels("column-pitch = 59.9"),
         "line 6: labels would overlap: \"column-pitch\" is 59.90 mm, \"width\" 60.00 mm"},
        {Labels("column-pitch = 160"),
         "line 2: labels would leave the page: with \"columns\" they take 220.00 mm, and \"left\" "
         "is 0.00 mm; the page has 210.00 mm"},
        {Labels("left = 91"), "line 2: labels would leave the page"},
        {Labels("top = 178"), "line 3: labels would leave the page"},
        {Labels("page-width = 1e9"), "line 6: \"page-width\" is a length"},
        {Labels("gutter = 1"), "line 6: there is no key \"gutter\""},
        {"line = 1", "line 1: \"line\" is a list of tables"},
        {"line = [1]", "line 1: \"line\" is a list of tables"},
        {"[[line]]\nreadable = true", "no line has the barcode"},
        {barcode + barcode, "line 3: a label has one barcode"},
        {barcode + "text = \"a\"", "line 1: a line has one of text"},
        {barcode + "[[line]]\nsize = 9", "line 3: a line has one of text"},
        {barcode + "[[line]]\ntext = \"{sku}\"",
         "line 4: there is no column \"sku\"; the columns are \"type\", \"data\", \"name\""},
        {barcode + "size = 0", "line 3: \"size\" is a size such as \"9pt\", from 2 to 144 pt"},
        {barcode + "align = \"up\"", "line 3: \"align\" is left, centre or right"},
        {"font = \"a\\\n  b\"", "line 1: a string ends on the line it begins on"},
        {"sheet = ", "line 1: "},
        {"sheet = \"a\"\nsheet = \"b\"", "line 2: "},
        {"padding = \x80", "line 1: "},
        {std::string(kMostLayoutBytes + 1, '\n'), "a layout has at most 1048576 bytes"},
    };
    for (const auto& [content, problem] : problems) {
        EXPECT_THAT(ProblemOf(content), HasSubstr(problem)) << content.substr(0, 200);
        EXPECT_THAT(ProblemOf(content), testing::StartsWith("labels.toml")) << problem;
    }
}

TEST(LayoutTest, KeepsLabelsOfKnownSheetsApartAndOnTheirPages) {
    for (const LabelSheet& sheet : kLabelSheets) {
        EXPECT_EQ(FindLabelSheet(sheet.name), &sheet) << sheet.name << " stands twice";
        EXPECT_GE(sheet.columnPitch, sheet.labelWidth) << sheet.name;
        EXPECT_GE(sheet.rowPitch, sheet.labelHeight) << sheet.name;
        EXPECT_LE(sheet.left + (sheet.columns - 1) * sheet.columnPitch + sheet.labelWidth,
                  sheet.pageWidth + 1e-9)
            << sheet.name;
        EXPECT_LE(sheet.top + (sheet.rows - 1) * sheet.rowPitch + sheet.labelHeight,
                  sheet.pageHeight + 1e-9)
            << sheet.name;
    }
}

std::string Filled(std::string_view text) {
    return FilledLine(text, [](std::string_view name) -> std::optional<std::string_view> {
        if (name == "full") return "{empty} & <full>";
        if (name == "empty") return "";
        return std::nullopt;
    });
}

TEST(LineTextTest, FillsInColumnsOnce) {
    EXPECT_EQ(Filled("a {full} b"), "a {empty} & <full> b");
    EXPECT_EQ(Filled("{none} {{full}} }{"), "{none} {{empty} & <full>} }{");
    EXPECT_EQ(Filled(std::string(100000, '}')), std::string(100000, '}'));
}

TEST(LineTextTest, LeavesOutPartsThatSayNothing) {
    EXPECT_EQ(Filled("{empty} · No. {empty} · {full}"), "{empty} & <full>");
    EXPECT_EQ(Filled("{empty} · kept · {empty}"), "kept");
    EXPECT_EQ(Filled("{empty}"), "");
}

TEST(LineTextTest, BreaksLinesAndShowsWhatCannotBeSeen) {
    EXPECT_THAT(ShownLines("a\r\nb\rc\nd\n\n \n"), ElementsAre("a", "b", "c", "d"));
    EXPECT_THAT(ShownLines(" a\tb  "), ElementsAre(" a b  "));
    EXPECT_THAT(ShownLines("\x01\xEF\xBF\xBE\xEF\xBF\xBF\xFF"),
                ElementsAre("\xE2\x90\x81\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"));
    EXPECT_THAT(ShownLines(""), ElementsAre());
}

}  // namespace

}  // namespace linewright
