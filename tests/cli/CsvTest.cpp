#include "merge/Csv.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "merge/Failure.h"
#include "merge/RecordReader.h"

namespace linewright {

namespace {

using Values = std::vector<std::string>;

/** Gives a text in pieces of some length. */
class PieceSource : public ByteSource {
  public:
    PieceSource(std::string_view wholeText, std::size_t pieceLength)
        : rest(wholeText), length(pieceLength) {}

    std::size_t Read(char* block, std::size_t capacity) override {
        const std::size_t count = rest.copy(block, std::min(capacity, length));
        rest.remove_prefix(count);
        return count;
    }

  private:
    std::string_view rest;
    std::size_t length;
};

struct Row {
    std::string text;
    std::vector<std::string> fields;
    std::string ending;
    std::uint64_t line;
    bool isBlank;

    bool operator==(const Row&) const = default;
};

constexpr std::size_t kNoLimit = std::size_t{1} << 30;

std::vector<Row> Read(std::string_view text, char delimiter = ',', std::size_t piece = kNoLimit,
                      std::size_t maxRecord = kNoLimit) {
    PieceSource source(text, piece);
    RecordReader reader(source, maxRecord);
    reader.SetDelimiter(delimiter);
    std::vector<Row> rows;
    while (reader.Next()) {
        const Record& record = reader.Current();
        rows.push_back({std::string(record.text),
                        {record.fields.begin(), record.fields.end()},
                        std::string(record.ending),
                        record.line,
                        record.IsBlank()});
    }
    return rows;
}

std::vector<Values> Parse(std::string_view text, char delimiter = ',') {
    std::vector<Values> rows;
    for (const Row& row : Read(text, delimiter)) {
        Values values;
        for (const std::string& field : row.fields) values.push_back(CsvValue(field));
        rows.push_back(values);
    }
    return rows;
}

std::string FailureOf(std::string_view text, std::size_t maxRecord = kNoLimit) {
    try {
        Read(text, ',', kNoLimit, maxRecord);
    } catch (const Failure& failure) {
        return failure.what();
    }
    return "";
}

char DelimiterOf(std::string_view text) {
    DelimiterFinder finder;
    for (; !text.empty() && !finder.Take(text.substr(0, 1)); text.remove_prefix(1)) continue;
    return finder.Found();
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
    const std::vector<Row> rows = Read("a\nb\r\nc\rd");
    ASSERT_EQ(rows.size(), 4U);
    EXPECT_EQ(rows[0].ending, "\n");
    EXPECT_EQ(rows[1].ending, "\r\n");
    EXPECT_EQ(rows[2].ending, "\r");
    EXPECT_EQ(rows[3].ending, "");
    EXPECT_EQ(rows[3].line, 4U);
    EXPECT_EQ(Read("a\r")[0].ending, "\r");
}

TEST(Csv, CountsLinesInsideOfFields) {
    const std::vector<Row> rows = Read("a,\"b\r\nc\rd\ne\"\nf,g\n");
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[1].line, 5U);
}

TEST(Csv, SeesBlankLines) {
    const std::vector<Row> rows = Read("a,b\n\n\"\"\n");
    EXPECT_FALSE(rows[0].isBlank);
    EXPECT_TRUE(rows[1].isBlank);
    EXPECT_FALSE(rows[2].isBlank);
}

TEST(Csv, RefusesAQuoteThatIsNeverClosed) {
    EXPECT_EQ(FailureOf("a,b\nc,\"d\n\n"), "a quoted field of the row in line 2 is never closed");
    EXPECT_NE(FailureOf("\""), "");
    EXPECT_NE(FailureOf("\"\"\""), "");
    EXPECT_EQ(FailureOf("\"\""), "");
}

TEST(Csv, RefusesARowAboveTheLimit) {
    EXPECT_EQ(FailureOf("a,b\n12345\n", 5), "");
    EXPECT_EQ(FailureOf("a,b\n123456\n", 5),
              "line 2: the row is longer than the 5 bytes of --max-record");
    EXPECT_EQ(FailureOf(std::string("a,b\n\"").append(2'000'000, 'x'), 1'000'000),
              "line 2: the row is longer than the 1000000 bytes of --max-record");
}

TEST(Csv, RefusesBytesThatAreNotUtf8) {
    EXPECT_EQ(FailureOf("a,\xC3\xA9\n\"\n\nab\xE9\",c\n"),
              "line 4: byte 3, 0xE9, is not UTF-8; --encoding says what the file is in, such as "
              "--encoding windows-1252");
    EXPECT_NE(FailureOf("a\n01234567890123456789\xE9\n"), "");
    EXPECT_NE(FailureOf("a\n\xC3"), "") << "half of a character at the end";
}

/** Wherever the blocks end that a file is read in: in CRLF, between quotes, in a character. */
TEST(Csv, ReadsTheSameInPiecesOfAnyLength) {
    const std::string text =
        "type,data\r\n\"a\"\"b\",\"c\r\nd\"\r\r\né€😀,\"\"\"\"\n01234567890123456789,x\rlast,\"q\"";
    const std::vector<Row> whole = Read(text);
    ASSERT_EQ(whole.size(), 6U);
    for (std::size_t piece = 1; piece <= text.size(); ++piece) {
        EXPECT_EQ(Read(text, ',', piece), whole) << piece;
    }
}

/** The reader's memory holds 262,144 bytes at first. */
TEST(Csv, ReadsRecordsThatEndWhereTheMemoryDoes) {
    constexpr std::size_t kMemory = 262'144;
    for (const std::string ending : {"\n", "\r\n", "\r"}) {
        for (std::size_t length = kMemory - 4; length < kMemory + 4; ++length) {
            std::string first(length, 'x');
            first.front() = first.back() = '"';
            std::string text = first;
            text.append(ending).append("a,b").append(ending);
            const std::vector<Row> rows = Read(text);
            ASSERT_EQ(rows.size(), 2U);
            EXPECT_EQ(rows[0].text, first);
            EXPECT_EQ(rows[0].ending, ending);
            EXPECT_EQ(rows[1].fields, (Values{"a", "b"}));
            EXPECT_EQ(rows[1].ending, ending);
        }
    }
}

TEST(Csv, KeepsOneFieldMoreThanAHeaderMayHave) {
    const std::vector<Row> rows = Read(std::string(20'000, ',') + "\n");
    EXPECT_EQ(rows[0].fields.size(), kMaxColumns + 1);
    EXPECT_EQ(rows[0].text.size(), 20'000U);
}

TEST(Csv, FindsMarksAsWhoLooksByteByByte) {
    const FourBytes marks({';', '\n', '\r', '"'});
    std::mt19937 random(16);
    std::array<char, kSixteen> bytes{};
    for (int round = 0; round < 20'000; ++round) {
        for (char& byte : bytes) byte = "a;\n\r\"z\xFF,"[random() % 8];
        const ByteMasks fast = marks.LookAt(bytes.data());
        const ByteMasks plain = marks.PlainlyLookAt(bytes.data());
        ASSERT_EQ(fast.found, plain.found);
        ASSERT_EQ(fast.aboveAscii, plain.aboveAscii);
    }
}

TEST(Csv, FindsTheDelimiterInTheHeader) {
    EXPECT_EQ(DelimiterOf("type,data;x\n;;;;"), ',');
    EXPECT_EQ(DelimiterOf("type;data;\"a,b,c,d\"\n"), ';');
    EXPECT_EQ(DelimiterOf("type\tdata\r\n,,,"), '\t');
    EXPECT_EQ(DelimiterOf("\"a\n;b\",c\n"), ',');
    EXPECT_EQ(DelimiterOf("data"), ',');
    EXPECT_EQ(DelimiterOf(""), ',');
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
    for (int round = 0; round < 4'000; ++round) {
        std::string text;
        for (auto length = random() % 20; length > 0; --length) {
            text += kAlphabet[random() % kAlphabet.size()];
        }
        const std::vector<Values> written =
            Parse(CsvField(text, ',') + "," + CsvField(text, ',') + "\n");
        EXPECT_EQ(written, (std::vector<Values>{{text, text}}));
        try {
            std::string joined;
            const std::vector<Row> rows = Read(text, ',', 1 + random() % 20);
            for (const Row& row : rows) {
                for (std::size_t i = 0; i < row.fields.size(); ++i) {
                    if (i > 0) joined += ',';
                    joined += row.fields[i];
                }
                joined += row.ending;
            }
            EXPECT_EQ(joined, text);
            EXPECT_EQ(Read(text), rows);
        } catch (const Failure&) {
            EXPECT_NE(text.find('"'), std::string::npos);
        }
    }
}

}  // namespace

}  // namespace linewright
