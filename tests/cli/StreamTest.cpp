#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "merge/Failure.h"
#include "stream/LineReader.h"
#include "stream/StreamRequest.h"
#include "tests/cli/CommandRunner.h"
#include "text/Hex.h"

namespace linewright {

namespace {

using nlohmann::json;

EncodeRequest Parsed(std::string_view line) {
    std::string id;
    return ParseStreamRequest(line, id).encode;
}

std::string WhyRefused(std::string_view line) {
    try {
        Parsed(line);
        return "";
    } catch (const Failure& failure) {
        return failure.what();
    }
}

TEST(StreamRequest, TakesTextWithConversion) {
    const EncodeRequest request = Parsed(R"({"type":"_X_","data":"a\u0000é"})");
    EXPECT_EQ(request.typeName, "_X_");
    EXPECT_EQ(request.data, std::string("a\0\xC3\xA9", 4));
    EXPECT_TRUE(request.isUtf8);
    EXPECT_EQ(request.checkCharacter, 0);
    EXPECT_EQ(request.ratio, 2.0);
}

TEST(StreamRequest, TakesBytesAsTheyAre) {
    EncodeRequest request = Parsed(R"({"typeHex":"00FF","hex":"c3A9"})");
    EXPECT_EQ(request.typeName, std::string("\0\xFF", 2));
    EXPECT_EQ(request.data, "\xC3\xA9");
    EXPECT_FALSE(request.isUtf8);
    request = Parsed(R"({"type":"","hex":"","utf8":true,"check":255,"ratio":-1e300})");
    EXPECT_TRUE(request.isUtf8);
    EXPECT_EQ(request.checkCharacter, 255);
    EXPECT_EQ(request.ratio, -1e300);
    EXPECT_EQ(Parsed(R"({"type":"","hex":"","check":true})").checkCharacter, 1);
    EXPECT_EQ(Parsed(R"({"type":"","hex":"","ratio":3})").ratio, 3.0);
}

TEST(StreamRequest, SaysWhatIsWrong) {
    EXPECT_EQ(WhyRefused(""), "no valid JSON from byte 1 on");
    EXPECT_EQ(WhyRefused(R"({"type":)"), "no valid JSON from byte 9 on");
    EXPECT_EQ(WhyRefused("{} {}"), "no valid JSON from byte 4 on");
    EXPECT_EQ(WhyRefused("\"\xFF\""), "no valid JSON from byte 2 on");
    EXPECT_EQ(WhyRefused("1"), "no object stands here");
    EXPECT_EQ(WhyRefused("[{}]"), "a list stands where an object is expected");
    EXPECT_EQ(WhyRefused("{}"), R"(there is neither "type" nor "typeHex")");
    EXPECT_EQ(WhyRefused(R"({"type":""})"), R"(there is neither "data" nor "hex")");
    EXPECT_EQ(WhyRefused(R"({"type":"","data":"","hex":""})"),
              R"(both "data" and "hex" are there)");
    EXPECT_EQ(WhyRefused(R"({"type":1,"data":""})"), R"("type" is not a text)");
    EXPECT_EQ(WhyRefused(R"({"type":"","data":{}})"),
              "a member is a list or an object; none may be");
    EXPECT_EQ(WhyRefused(R"({"type":"","hex":"0"})"),
              R"("hex" is not pairs of hexadecimal digits)");
    EXPECT_EQ(
        WhyRefused(R"({"type":"","data":"","ratoi":3})"),
        R"(there is no member "ratoi"; the members are type, typeHex, data, hex, utf8, check, )"
        "ratio, gtin, warnings, id");
    EXPECT_EQ(WhyRefused(R"({"type":"","data":"","ratio":"3"})"), R"("ratio" is not a number)");
    EXPECT_EQ(WhyRefused(R"({"type":"","data":"","ratio":1e999})"), "a number is too large");
    EXPECT_EQ(WhyRefused(R"({"type":"","data":"","utf8":false})"),
              R"("data" is always converted; send "hex" for data that is not)");
    EXPECT_TRUE(Parsed(R"({"type":"","data":"","utf8":true})").isUtf8);
    EXPECT_EQ(WhyRefused(R"({"type":"","hex":"","utf8":1})"), R"("utf8" is not a boolean)");
    for (const char* const check : {"256", "-1", "1.5", "\"1\"", "null"}) {
        EXPECT_EQ(WhyRefused(R"({"type":"","data":"","check":)" + std::string(check) + "}"),
                  R"("check" is not a whole number from 0 to 255 or a boolean)");
    }
}

TEST(StreamRequest, HasEachMemberOnce) {
    EXPECT_EQ(WhyRefused(R"({"type":"","data":"1","data":"2"})"),
              R"(the member "data" stands twice)");
    EXPECT_EQ(WhyRefused(R"({"type":"","data":"1","\u0064ata":"1"})"),
              R"(the member "data" stands twice)");
    EXPECT_EQ(WhyRefused(R"({"type":"","\u001b":"1","\u001b":"2"})"),
              "the member \"␛\" stands twice");
}

/** What comes back as the id of a line, whether or not the line is a request. */
std::string IdOf(std::string_view line) {
    std::string id = "of another line";
    try {
        ParseStreamRequest(line, id);
    } catch (const Failure&) {
        return id;
    }
    return id;
}

TEST(StreamRequest, KeepsItsIdAsItWas) {
    for (const char* const id :
         {"7", "-7", "1.10", "1e5", "12345678901234567890123", "0.1000000000000000055", "true",
          "false", "null", R"("")", R"("a\"b\\\u001bé")"}) {
        const std::string member = R"("id":)" + std::string(id);
        EXPECT_EQ(IdOf(R"({"type":"","data":"",)" + member + "}"), id);
        EXPECT_EQ(IdOf("{" + member + R"(,"ratoi":1})"), id) << "a member that is none";
        EXPECT_EQ(IdOf(R"({"data":[{}],)" + member + "}"), id) << "nesting in front";
        EXPECT_EQ(IdOf(R"({"data":1,"data":2,)" + member + "}"), id) << "twice in front";
        EXPECT_EQ(IdOf("{" + member + R"(,"data)"), id) << "broken off";
    }
}

TEST(StreamRequest, HasNoIdThatCannotBeTold) {
    for (const char* const line :
         {R"({"type":"","data":""})", "", R"([{"id":1}])", R"({"data":{"id":1}})", R"({"id":[1]})",
          R"({"id":1,"id":1})", R"({"id":1e999})", R"({"id":"a)"}) {
        EXPECT_EQ(IdOf(line), "") << line;
    }
}

TEST(StreamRequest, HasRoomForTheLongestName) {
    const auto line = [](std::size_t length) {
        return R"({"data":"","type":")" + std::string(length, 'x') + "\"}";
    };
    EXPECT_EQ(WhyRefused(line(255)), "");
    EXPECT_EQ(WhyRefused(line(256)), "the type name has 256 bytes; 255 is the most");
}

TEST(StreamRequest, StandsDeepNesting) {
    EXPECT_NE(WhyRefused(std::string(100'000, '[')), "");
    EXPECT_NE(WhyRefused(R"({"data":)" + std::string(100'000, '[')), "");
    std::string objects;
    for (int i = 0; i < 100'000; ++i) objects += R"({"data":)";
    EXPECT_NE(WhyRefused(objects), "");
}

TEST(LineReader, TakesLinesApart) {
    std::istringstream in("a\n\nbc\r\nlong line\nd");
    std::ostringstream out;
    LineReader reader(in, out);
    std::string line;
    using Result = LineReader::Result;
    for (const char* const expected : {"a", "", "bc\r"}) {
        EXPECT_EQ(reader.Next(line, 5), Result::kLine);
        EXPECT_EQ(line, expected);
    }
    EXPECT_EQ(reader.Next(line, 5), Result::kTooLong);
    EXPECT_EQ(reader.Next(line, 5), Result::kLine);
    EXPECT_EQ(line, "d");
    EXPECT_EQ(reader.Next(line, 5), Result::kEnd);
}

/** A stream that hands out a piece at a time and counts how often answers were let out. */
class Pieces : public std::streambuf {
  public:
    explicit Pieces(std::vector<std::string> texts) : pieces(std::move(texts)) {}

  protected:
    int_type underflow() override {
        if (next == pieces.size()) return traits_type::eof();
        std::string& piece = pieces[next++];
        setg(piece.data(), piece.data(), piece.data() + piece.size());
        return traits_type::to_int_type(piece[0]);
    }

  private:
    std::vector<std::string> pieces;
    std::size_t next = 0;
};

class FlushCounter : public std::stringbuf {
  public:
    int flushes = 0;

  protected:
    int sync() override {
        ++flushes;
        return 0;
    }
};

TEST(LineReader, LetsAnswersOutBeforeItWaits) {
    Pieces pieces({"a\nb\nc", "d\n", "e"});
    FlushCounter counter;
    std::istream in(&pieces);
    std::ostream out(&counter);
    LineReader reader(in, out);
    std::string line;
    const auto next = [&] {
        return reader.Next(line, 99) == LineReader::Result::kLine ? line : ".";
    };
    EXPECT_EQ(next(), "a");
    EXPECT_EQ(counter.flushes, 1) << "before the first piece";
    EXPECT_EQ(next(), "b");
    EXPECT_EQ(counter.flushes, 1) << "more was at hand";
    EXPECT_EQ(next(), "cd");
    EXPECT_EQ(counter.flushes, 2);
    EXPECT_EQ(next(), "e");
    EXPECT_EQ(next(), ".");
}

std::vector<json> Answers(const std::string& out) {
    std::vector<json> answers;
    std::istringstream lines(out);
    for (std::string line; std::getline(lines, line);) answers.push_back(json::parse(line));
    return answers;
}

TEST(Stream, AnswersInOrder) {
    const CommandRunner command;
    const auto result = command.Run({"stream"}, R"({"type":"_BARCODE_CODE128B_","data":"AB"}
{"type":"_BARCODE_CODE128A_","hex":"4142"}
{"type":"_BARCODE_CODE128A_","data":"ab"}
{"type":"ean13","data":" x "}
{"type":"_BARCODE_USPS_IM_","data":"1"}
)");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
    const std::vector<json> answers = Answers(result.out);
    ASSERT_EQ(answers.size(), 5U);
    // Set B: 104 + 33 + 2·34 = 205, check 102, which is byte 134. Set A: 204, check 101, byte 201.
    EXPECT_EQ(answers[0]["status"], 0);
    EXPECT_EQ(answers[0]["recognised"], true);
    EXPECT_EQ(answers[0]["hex"], "884142868a");
    EXPECT_EQ(answers[0]["text"], "ˆAB†Š");
    EXPECT_EQ(answers[0]["hint"], "");
    EXPECT_EQ(answers[1]["hex"], "874142c98a");
    EXPECT_EQ(answers[2]["status"], -1);
    EXPECT_EQ(answers[2]["text"], "***Bad Code 128 A***");
    EXPECT_EQ(answers[3]["status"], 0) << "no short names here";
    EXPECT_EQ(answers[3]["recognised"], false);
    EXPECT_EQ(answers[3]["text"], "x") << "the data is trimmed all the same";
    EXPECT_EQ(answers[4]["status"], -6300);
    EXPECT_NE(answers[4]["hint"], "");
    for (const json& answer : answers) EXPECT_EQ(answer.size(), 5U);
}

TEST(Stream, ShowsKeysInThePseudoLocale) {
    const CommandRunner command;
    const auto result =
        command.Run({"stream", "--locale", "qps"}, R"({"type":"_BARCODE_USPS_IM_","data":"1"})");
    EXPECT_EQ(Answers(result.out).at(0)["hint"], "0x122100kLWRBarCodeLengthBetweenHint|20|31");
}

TEST(Stream, GoesOnAfterLinesThatAreNoRequests) {
    const CommandRunner command;
    const auto result = command.Run(
        {"stream"}, "\n[1]\n{\"type\":\"_BARCODE_CODE128B_\",\"data\":\"AB\"}\n\xFF\xFE\nnull");
    EXPECT_EQ(result.status, 2);
    const std::vector<json> answers = Answers(result.out);
    ASSERT_EQ(answers.size(), 5U);
    EXPECT_EQ(answers[0]["error"], "line 1: no valid JSON from byte 1 on");
    EXPECT_EQ(answers[1]["error"], "line 2: a list stands where an object is expected");
    EXPECT_EQ(answers[2]["status"], 0);
    EXPECT_EQ(answers[3]["error"], "line 4: no valid JSON from byte 1 on");
    EXPECT_EQ(answers[4]["error"], "line 5: no object stands here");
}

TEST(Stream, PutsTheIdInFront) {
    const CommandRunner command;
    const auto result =
        command.Run({"stream"}, R"({"type":"_BARCODE_CODE128B_","data":"AB","id":1.10}
{"id":"a\"é","type":"x"}
{"type":"x","data":""}
)");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(
        result.out,
        R"({"id":1.10,"status":0,"recognised":true,"hex":"884142868a","text":"ˆAB†Š","hint":""}
{"id":"a\"é","error":"line 2: there is neither \"data\" nor \"hex\""}
{"status":0,"recognised":false,"hex":"","text":"","hint":""}
)");
}

TEST(Stream, BringsNumbersToTheFormOfTheirType) {
    const CommandRunner command;
    const auto result =
        command.Run({"stream"}, R"({"type":"_QVT_BARCODE_EAN13_","data":"0-306-40615-2","gtin":true}
{"type":"_QVT_BARCODE_EAN13_","data":"9780306406157"}
{"type":"_QVT_BARCODE_EAN13_","data":"0-306-40615-3","gtin":true,"id":7}
{"type":"ean13","data":"0-306-40615-2","gtin":true}
)");
    EXPECT_EQ(result.status, 2);
    const std::vector<json> answers = Answers(result.out);
    ASSERT_EQ(answers.size(), 4U);
    EXPECT_EQ(answers[0]["hex"], answers[1]["hex"]);
    EXPECT_EQ(answers[0]["note"],
              "ISBN-10 0-306-40615-2 was brought to the type's form: 9780306406157");
    EXPECT_FALSE(answers[1].contains("note"));
    EXPECT_EQ(answers[2]["error"],
              "line 3: the check digit of ISBN-10 0-306-40615-3 is 3, and should be 2");
    EXPECT_EQ(answers[2]["id"], 7);
    EXPECT_EQ(answers[3]["recognised"], false) << "no short names here";
}

TEST(Stream, WarnsWhereItIsAsked) {
    const CommandRunner command;
    const auto result = command.Run(
        {"stream"}, R"({"type":"_QVT_BARCODE_EAN13_","data":"12345678905","warnings":true}
{"type":"_QVT_BARCODE_EAN13_","data":"12345678905"}
{"type":"_QVT_BARCODE_EAN13_","data":"400638133393","warnings":true}
{"type":"_QVT_BARCODE_EAN13_","data":"x","warnings":true}
)");
    EXPECT_EQ(result.status, 0);
    const std::vector<json> answers = Answers(result.out);
    ASSERT_EQ(answers.size(), 4U);
    EXPECT_EQ(answers[0]["warnings"],
              json::array({"zeros put in front (1): the number in the bars is 0123456789050"}));
    EXPECT_FALSE(answers[1].contains("warnings"));
    EXPECT_EQ(answers[2]["warnings"], json::array());
    EXPECT_EQ(answers[3]["warnings"], json::array()) << "refused data is not warned about";
}

TEST(Stream, OfNothingIsNothing) {
    const CommandRunner command;
    const auto result = command.Run({"stream"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "");
}

TEST(Stream, StandsLongLines) {
    const CommandRunner command;
    const std::string digits(2'000'000, '1');
    const auto result =
        command.Run({"stream"}, R"({"type":"_QVT_BARCODE_MSI_","data":")" + digits + "\"}\n" +
                                    R"({"type":"no such type","data":")" + digits + "\"}\n" +
                                    std::string((64U << 20) + 1, ' ') + "\n1");
    const std::vector<json> answers = Answers(result.out);
    ASSERT_EQ(answers.size(), 4U);
    EXPECT_EQ(answers[0]["status"], -6300);
    EXPECT_EQ(answers[1]["text"], digits);
    EXPECT_EQ(answers[2]["error"], "line 3: longer than 67108864 bytes");
    EXPECT_EQ(answers[3]["error"], "line 4: no object stands here");
}

}  // namespace

}  // namespace linewright
