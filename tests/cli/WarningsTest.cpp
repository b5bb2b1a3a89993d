#include "cli/Warnings.h"

#include <gtest/gtest.h>

#include "cli/Encoding.h"
#include "cli/Hex.h"
#include "tests/JsonLines.h"
#include "tests/cli/CommandRunner.h"
#include "types/WrittenType.h"

namespace linewright {

namespace {

EncodeRequest RequestOf(const JsonLine& row) {
    const nlohmann::json& fields = row.fields;
    const bool isText = fields.contains("data");
    return {
        .typeName = fields.at("type"),
        .data = isText ? fields.at("data").get<std::string>()
                       : FromHex(fields.at("hex").get<std::string>()).value(),
        .isUtf8 = fields.value("utf8", isText),
    };
}

std::vector<std::string> ExpectedOf(const JsonLine& row) {
    return row.fields.at("warnings");
}

std::vector<JsonLine> Rows() {
    return ReadJsonLines(LINEWRIGHT_CLI_TESTS "/warnings.jsonl");
}

class WarningsTest : public testing::TestWithParam<JsonLine> {};

TEST_P(WarningsTest, SayWhatThePlugInDoes) {
    const EncodeRequest request = RequestOf(GetParam());
    EXPECT_EQ(Warnings(TypeNameOf(request.typeName), request.data, request.isUtf8),
              ExpectedOf(GetParam()))
        << GetParam().fields;
}

INSTANTIATE_TEST_SUITE_P(Rows, WarningsTest, testing::ValuesIn(Rows()), NameOfParameter);

TEST(WarningsRows, AreThereAndSayWhereTheyComeFrom) {
    EXPECT_GT(Rows().size(), 50U);
    for (const JsonLine& row : Rows()) EXPECT_FALSE(row.fields.at("from").empty()) << row.number;
}

/** All rows in one host: what is warned about is made all the same, and strictness refuses it. */
TEST(WarningsRows, AreMadeByThePlugIn) {
    const CommandRunner folders;
    Service service({.plugin = LINEWRIGHT_PLUGIN,
                     .roamingFolder = folders.Place("config"),
                     .appFolder = folders.Place("app"),
                     .locale = ""});
    for (const JsonLine& row : Rows()) {
        const BarcodeOutcome outcome = MakeBarcode(service, RequestOf(row), false);
        EXPECT_TRUE(outcome.isMade) << row.fields << outcome.message;
        EXPECT_EQ(outcome.warnings, ExpectedOf(row)) << row.fields;
        const BarcodeOutcome strict = MakeBarcode(service, RequestOf(row), true);
        EXPECT_EQ(strict.isMade, ExpectedOf(row).empty()) << row.fields;
        EXPECT_EQ(strict.bytes, ExpectedOf(row).empty() ? outcome.bytes : "") << row.fields;
    }
    const host::Leaks leaks = service.Stop();
    EXPECT_EQ(leaks.blocks + leaks.references, 0U);
}

}  // namespace

}  // namespace linewright
