#include "merge/CellTable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/runtime/Paths.h"
#include "merge/EncodingFailure.h"
#include "tests/files/TestFolder.h"

namespace linewright {

namespace {

using testing::ElementsAre;
using Row = std::vector<std::string>;

class CellFileTest : public TestFolder {
  protected:
    CellTable Read(const std::string& content, std::optional<Encoding> encoding = std::nullopt) {
        Put("a.csv", content);
        return TableOfFile(host::Utf8FromPath(folder / "a.csv"), encoding,
                           [](int) { return true; });
    }
};

TEST(CellTable, TakesCellsOfAClipboard) {
    EXPECT_THAT(TableOfCells("1\t2\r\n3\t4\r\n").rows, ElementsAre(Row{"1", "2"}, Row{"3", "4"}));
    EXPECT_THAT(TableOfCells("1,2;3").rows, ElementsAre(Row{"1,2;3"}));
    EXPECT_THAT(TableOfCells("\"a\"\"b\nc\"\td").rows, ElementsAre(Row{"a\"b\nc", "d"}));
    EXPECT_THAT(TableOfCells("1\n\n\n2").rows, ElementsAre(Row{"1"}, Row{"2"}));
    EXPECT_THAT(TableOfCells("1\n2\t3\n").rows, ElementsAre(Row{"1", ""}, Row{"2", "3"}));
    EXPECT_THAT(TableOfCells("\t\n").rows, ElementsAre(Row{"", ""}));
    EXPECT_THAT(TableOfCells(" 1 \n").rows, ElementsAre(Row{" 1 "}));
    EXPECT_TRUE(TableOfCells("").rows.empty());
}

TEST(CellTable, QuotesThatAreNotClosedStandForThemselves) {
    EXPECT_THAT(TableOfCells("\"5\t1\r\n7\t2").rows, ElementsAre(Row{"\"5", "1"}, Row{"7", "2"}));
    EXPECT_THAT(TableOfCells("5\" pipe\t1\n").rows, ElementsAre(Row{"5\" pipe", "1"}));
    EXPECT_THAT(TableOfCells("\"a\t\n").rows, ElementsAre(Row{"\"a", ""}));
}

TEST_F(CellFileTest, FindsDelimiterAndEncoding) {
    EXPECT_THAT(Read("a;b\n1;2\n").rows, ElementsAre(Row{"a", "b"}, Row{"1", "2"}));
    EXPECT_THAT(Read("\xEF\xBB\xBF\xC3\xA4\n").rows, ElementsAre(Row{"\xC3\xA4"}));
    EXPECT_THAT(Read(std::string("\xFF\xFE"
                                 "a\0\n\0"
                                 "1\0",
                                 8))
                    .rows,
                ElementsAre(Row{"a"}, Row{"1"}));
    EXPECT_THAT(Read("\xE4", Encoding::kWindows1252).rows, ElementsAre(Row{"\xC3\xA4"}));
    EXPECT_THAT(Read("\x8A", Encoding::kMacRoman).rows, ElementsAre(Row{"\xC3\xA4"}));
}

TEST_F(CellFileTest, TellsAnotherEncodingFromOtherMistakes) {
    EXPECT_THROW(Read("a\n\xE4\n"), EncodingFailure);
    EXPECT_THROW(Read("\x81", Encoding::kWindows1252), EncodingFailure);
    try {
        Read("\"never closed");
        ADD_FAILURE();
    } catch (const EncodingFailure&) {
        ADD_FAILURE();
    } catch (const Failure& failure) {
        EXPECT_THAT(failure.what(), testing::HasSubstr("a.csv: "));
    }
}

TEST_F(CellFileTest, CanBeEndedInTheMiddle) {
    std::string content;
    for (int i = 0; i < 10000; ++i) content += "1\n";
    Put("a.csv", content);
    int calls = 0;
    const CellTable table = TableOfFile(host::Utf8FromPath(folder / "a.csv"), std::nullopt,
                                        [&](int) { return ++calls < 2; });
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(table.rows.size(), 2048U);
}

TEST(CellTable, NamesAreWordsAboveNumbers) {
    const auto hasNames = [](const char* cells) { return HasNames(TableOfCells(cells)); };
    EXPECT_TRUE(hasNames("data\n123"));
    EXPECT_TRUE(hasNames("place\tnumber\nShelf\t1"));
    EXPECT_FALSE(hasNames("123\n456"));
    EXPECT_FALSE(hasNames("AB\nCD"));
    EXPECT_FALSE(hasNames("place\t\nShelf\t1"));
    EXPECT_FALSE(hasNames("data"));
}

}  // namespace

}  // namespace linewright
