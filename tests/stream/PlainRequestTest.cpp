#include "stream/PlainRequest.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <tuple>

#include "merge/Failure.h"
#include "tests/RandomData.h"

// The fast way of reading a line beside the careful one.

namespace linewright {

namespace {

auto MembersOf(const StreamRequest& request) {
    const EncodeRequest& encode = request.encode;
    return std::tuple(encode.typeName, encode.data, encode.isUtf8, int{encode.checkCharacter},
                      encode.ratio, request.isArticleNumber, request.areWarningsWanted);
}

/** Whether the fast way reads a line; then the careful one reads the same, and otherwise the line
 *  stands. */
bool IsPlain(const std::string& line) {
    std::string used = line;
    std::string id = "of another line";
    const auto plain = ReadPlainRequest(used, id);
    if (!plain) {
        EXPECT_EQ(used, line);
        EXPECT_EQ(id, "of another line") << line;
        return false;
    }
    std::string carefulId;
    try {
        EXPECT_EQ(MembersOf(*plain), MembersOf(ParseStreamRequest(line, carefulId))) << line;
    } catch (const Failure& failure) {
        ADD_FAILURE() << line << ": " << failure.what();
    }
    EXPECT_EQ(id, carefulId) << line;
    return true;
}

TEST(PlainRequest, IsMostRequests) {
    for (const char* const line : {
             R"({"type":"_X_","data":"4006381333931"})",
             R"( { "type" : "_X_" , "data" : "é€😀" } )",
             R"({"typeHex":"5f","hex":"C3a9","utf8":true,"check":255,"ratio":2.5})",
             R"({"type":"","data":"","utf8":true,"check":true,"ratio":3,"gtin":true})",
             R"({"type":"","hex":"","utf8":false,"check":false,"warnings":true})",
             R"({"type":"","data":"","id":"é"})",
             R"({"type":"","data":"","id":-0,"ratio":-1e300})",
             R"({"type":"","data":"","id":18446744073709551615})",
             R"({"type":"","data":"","id":-9223372036854775808})",
             R"({"id":null,"type":"","data":""})",
             R"({"id":true,"type":"","data":""})",
         }) {
        EXPECT_TRUE(IsPlain(line)) << line;
    }
}

TEST(PlainRequest, IsNothingElse) {
    for (const std::string line : {
             R"({"type":"","data":"\u0041"})",
             R"({"type":"","data":"","id":1.10})",
             R"({"type":"","data":"","id":18446744073709551616})",
             R"({"type":"","data":"","ratio":-3})",
             R"({"type":"","data":"","ratio":1e999})",
             R"({"type":"","data":"","ratio":"2"})",
             R"({"type":"","data":"","check":256})",
             R"({"type":"","data":"","check":1.0})",
             R"({"type":"","data":"","check":-0})",
             R"({"type":"","data":"","utf8":false})",
             R"({"type":"","data":"","gtin":1})",
             R"({"type":"","data":"","warnings":"yes"})",
             R"({"type":"","data":"","ratoi":3})",
             R"({"type":"","data":"1","data":"2"})",
             R"({"type":"","data":"","hex":""})",
             R"({"type":"","hex":"0"})",
             R"({"type":"","data":["1"]})",
             R"({"type":"","data":{"id":"1"}})",
             R"([{"type":"","data":""}])",
             R"({"type":"","data":""}})",
             R"({"type":"","data":"")",
             R"("type")",
             R"(1)",
             R"()",
         }) {
        EXPECT_FALSE(IsPlain(line)) << line;
    }
    EXPECT_FALSE(IsPlain(std::string("{\"type\":\"\",\"data\":\"\"}\0", 22)));
    EXPECT_FALSE(IsPlain("{\"type\":\"\",\"data\":\"\xED\xA0\x80\"}")) << "a surrogate";
    EXPECT_FALSE(IsPlain("{\"type\":\"\",\"data\":\"\xC1\xA1\"}")) << "overlong";
    EXPECT_FALSE(IsPlain("{\"type\":\"\",\"data\":\"\t\"}")) << "a control character";
}

/** Lines that are nearly requests, and some that are. */
TEST(PlainRequest, IsReadAsTheCarefulWayReadsIt) {
    constexpr std::string_view kValues[]{R"("_X_")",
                                         R"("00fF")",
                                         "1",
                                         "-0",
                                         "0",
                                         "255",
                                         "1.5",
                                         "2.50",
                                         "3e0",
                                         "1E-5",
                                         "01",
                                         "true",
                                         "false",
                                         "null",
                                         "[]",
                                         "{}",
                                         R"("é")",
                                         "\"\xFF\"",
                                         "2.00000000000000000001",
                                         "0.1000000000000000055511151231257827",
                                         "123456789012345678901234567890",
                                         "\"\x7F\""};
    constexpr std::string_view kNames[]{"type",  "typeHex", "data",     "hex", "utf8", "check",
                                        "ratio", "gtin",    "warnings", "id",  "x"};
    RandomData random(8259);
    int plain = 0;
    for (int i = 0; i < 100'000; ++i) {
        std::string line = R"({"type":"_X_","data":"1")";
        if (random.Number(0, 3) == 0) line = "{\"type\":\"_X_\"";
        for (std::size_t more = random.Number(0, 3); more > 0; --more) {
            line.append(",\"").append(kNames[random.Number(0, std::size(kNames) - 1)]);
            line.append("\":").append(kValues[random.Number(0, std::size(kValues) - 1)]);
        }
        line += '}';
        if (random.Number(0, 3) == 0) {
            line[random.Number(0, line.size() - 1)] =
                static_cast<char>(static_cast<unsigned char>(random.Number(0, 255)));
        }
        plain += IsPlain(line);
    }
    EXPECT_GT(plain, 10'000);
    EXPECT_LT(plain, 80'000);
}

}  // namespace

}  // namespace linewright
