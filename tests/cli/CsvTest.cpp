#include "merge/Csv.h"

#include <gtest/gtest.h>

#include <random>

#include "merge/Failure.h"

namespace linewright {

namespace {

using Values = std::vector<std::string>;

std::vector<Values> Parse(std::string_view text, char delimiter = ',') {
    std::vector<Values> rows;
    for (const CsvRecord& record : ReadCsv(text, delimiter).records) {
        Values values;
        for (const std::string_view field : record.fields) values.push_back(CsvValue(field));
        rows.push_back(values);
    }
    return rows;
}

// RFC 4180, section 2, rules 1 to 7.
TEST(Csv, ReadsTheExamplesOfTheRfc) {
    const std::vector<Values> two{{"aaa", "bbb", "ccc"}, {"zzz", "yyy", "xxx"}};
    EXPECT_EQ(Parse("aaa,bbb,ccc\r\nzzz,yyy,xxx\r\n"), two);
    EXPECT_EQ(Parse("aaa,bbb,ccc\r\nzzz,yyy,xxx"), two);
    EXPECT_EQ(Parse("\"aaa\",\"bbb\",\"ccc\"\r\nzzz,yyy,xxx"), two);
    EXPECT_EQ(Parse("\"aaa\",\"b\r\nbb\",\"ccc\""),
              (std::vector<Values>{{"aaa", "b\r\nbb", "ccc"}}));
    EXPECT_EQ(Parse("\"aaa\",\"b\"\"bb\",\"ccc\""), (std::vector<Values>{{"aaa", "b\"bb", "ccc"}}));
}

TEST(Csv, KeepsSpacesAndEmptyFields) {
    EXPECT_EQ(Parse(" a ,,\n,\n"), (std::vector<Values>{{" a ", "", ""}, {"", ""}}));
    EXPECT_EQ(Parse(""), std::vector<Values>{});
    EXPECT_EQ(Parse("\"\"\n"), (std::vector<Values>{{""}}));
}

TEST(Csv, TakesQuotesInsideAsTheyStand) {
    EXPECT_EQ(Parse("5\" disk,a\"b\"\n"), (std::vector<Values>{{"5\" disk", "a\"b\""}}));
    EXPECT_EQ(Parse("\"a\"b,c\n"), (std::vector<Values>{{"ab", "c"}}));
    EXPECT_EQ(Parse("\"\"\"\"\n"), (std::vector<Values>{{"\""}}));
}

TEST(Csv, KnowsEveryLineEnding) {
    const CsvFile file = ReadCsv("a\nb\r\nc\rd", ',');
    ASSERT_EQ(file.records.size(), 4U);
    EXPECT_EQ(file.records[0].ending, "\n");
    EXPECT_EQ(file.records[1].ending, "\r\n");
    EXPECT_EQ(file.records[2].ending, "\r");
    EXPECT_EQ(file.records[3].ending, "");
    EXPECT_EQ(file.records[3].line, 4U);
}

TEST(Csv, CountsLinesInsideOfFields) {
    const CsvFile file = ReadCsv("a,\"b\r\nc\rd\ne\"\nf,g\n", ',');
    ASSERT_EQ(file.records.size(), 2U);
    EXPECT_EQ(file.records[1].line, 5U);
}

TEST(Csv, SeesBlankLines) {
    const CsvFile file = ReadCsv("a,b\n\n\"\"\n", ',');
    EXPECT_FALSE(file.records[0].IsBlank());
    EXPECT_TRUE(file.records[1].IsBlank());
    EXPECT_FALSE(file.records[2].IsBlank());
}

TEST(Csv, SetsTheByteOrderMarkAside) {
    const CsvFile file = ReadCsv("\xEF\xBB\xBF\"type\",data\n", ',');
    EXPECT_EQ(file.byteOrderMark, "\xEF\xBB\xBF");
    EXPECT_EQ(CsvValue(file.records[0].fields[0]), "type");
}

TEST(Csv, RefusesAQuoteThatIsNeverClosed) {
    try {
        ReadCsv("a,b\nc,\"d\n\n", ',');
        FAIL() << "nothing was thrown";
    } catch (const Failure& failure) {
        EXPECT_STREQ(failure.what(), "a quoted field of the row in line 2 is never closed");
    }
    EXPECT_THROW(ReadCsv("\"", ','), Failure);
    EXPECT_THROW(ReadCsv("\"\"\"", ','), Failure);
}

TEST(Csv, FindsTheDelimiterInTheHeader) {
    EXPECT_EQ(DetectCsvDelimiter("type,data;x\n;;;;"), ',');
    EXPECT_EQ(DetectCsvDelimiter("type;data;\"a,b,c,d\"\n"), ';');
    EXPECT_EQ(DetectCsvDelimiter("type\tdata\r\n,,,"), '\t');
    EXPECT_EQ(DetectCsvDelimiter("\"a\n;b\",c\n"), ',');
    EXPECT_EQ(DetectCsvDelimiter("data"), ',');
    EXPECT_EQ(DetectCsvDelimiter(""), ',');
}

TEST(Csv, QuotesWhatNeedsQuotes) {
    EXPECT_EQ(CsvField("a;b", ','), "a;b");
    EXPECT_EQ(CsvField("a;b", ';'), "\"a;b\"");
    EXPECT_EQ(CsvField("a\"b", ','), "\"a\"\"b\"");
    EXPECT_EQ(CsvField("a\nb", ','), "\"a\nb\"");
    EXPECT_EQ(CsvField("a\rb", ','), "\"a\rb\"");
    EXPECT_EQ(CsvField(" a", ','), "\" a\"");
    EXPECT_EQ(CsvField("", ','), "");
}

/** Any text is taken apart without loss, and any value survives being written and read. */
TEST(Csv, LosesNothingOfRandomText) {
    std::mt19937 random(4180);
    constexpr std::string_view kAlphabet = "ab,;\"\"\n\r ";
    for (int round = 0; round < 20'000; ++round) {
        std::string text;
        for (auto length = random() % 20; length > 0; --length) {
            text += kAlphabet[random() % kAlphabet.size()];
        }
        const std::vector<Values> written =
            Parse(CsvField(text, ',') + "," + CsvField(text, ',') + "\n");
        EXPECT_EQ(written, (std::vector<Values>{{text, text}}));
        try {
            std::string joined;
            for (const CsvRecord& record : ReadCsv(text, ',').records) {
                for (std::size_t i = 0; i < record.fields.size(); ++i) {
                    if (i > 0) joined += ',';
                    joined += record.fields[i];
                }
                joined += record.ending;
            }
            EXPECT_EQ(joined, text);
        } catch (const Failure&) {
            EXPECT_NE(text.find('"'), std::string::npos);
        }
    }
}

}  // namespace

}  // namespace linewright
