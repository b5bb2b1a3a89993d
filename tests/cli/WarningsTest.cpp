#include "cli/Warnings.h"

#include <gtest/gtest.h>

#include <fstream>
#include <nlohmann/json.hpp>

#include "cli/Encoding.h"
#include "cli/Hex.h"
#include "tests/cli/CommandRunner.h"
#include "types/WrittenType.h"

namespace linewright {

namespace {

struct Row {
    int line;
    nlohmann::json fields;

    EncodeRequest Request() const {
        const bool isText = fields.contains("data");
        return {
            .typeName = fields.at("type"),
            .data = isText ? fields.at("data").get<std::string>()
                           : FromHex(fields.at("hex").get<std::string>()).value(),
            .isUtf8 = fields.value("utf8", isText),
        };
    }
    std::vector<std::string> Expected() const { return fields.at("warnings"); }
};

std::vector<Row> Rows() {
    std::vector<Row> rows;
    std::ifstream file(LINEWRIGHT_CLI_TESTS "/warnings.jsonl", std::ios::binary);
    int number = 0;
    for (std::string line; std::getline(file, line);) {
        rows.push_back({++number, nlohmann::json::parse(line)});
    }
    return rows;
}

std::string NameOf(const testing::TestParamInfo<Row>& info) {
    return "Line" + std::to_string(info.param.line);
}

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.fields.at("type");
}

class WarningsTest : public testing::TestWithParam<Row> {};

TEST_P(WarningsTest, SayWhatThePlugInDoes) {
    const EncodeRequest request = GetParam().Request();
    EXPECT_EQ(Warnings(FindWrittenType(request.typeName).type->name, request.data, request.isUtf8),
              GetParam().Expected())
        << GetParam().fields;
}

INSTANTIATE_TEST_SUITE_P(Rows, WarningsTest, testing::ValuesIn(Rows()), NameOf);

TEST(WarningsRows, AreThereAndSayWhereTheyComeFrom) {
    EXPECT_GT(Rows().size(), 50U);
    for (const Row& row : Rows()) EXPECT_FALSE(row.fields.at("from").empty()) << row.line;
}

/** All rows in one host: what is warned about is made all the same, and strictness refuses it. */
TEST(WarningsRows, AreMadeByThePlugIn) {
    const CommandRunner folders;
    Service service({.plugin = LINEWRIGHT_PLUGIN,
                     .roamingFolder = folders.Place("config"),
                     .appFolder = folders.Place("app"),
                     .locale = ""});
    for (const Row& row : Rows()) {
        const BarcodeOutcome outcome = MakeBarcode(service, row.Request(), false);
        EXPECT_TRUE(outcome.isMade) << row.fields << outcome.message;
        EXPECT_EQ(outcome.warnings, row.Expected()) << row.fields;
        const BarcodeOutcome strict = MakeBarcode(service, row.Request(), true);
        EXPECT_EQ(strict.isMade, row.Expected().empty()) << row.fields;
        EXPECT_EQ(strict.bytes, row.Expected().empty() ? outcome.bytes : "") << row.fields;
    }
    const host::Leaks leaks = service.Stop();
    EXPECT_EQ(leaks.blocks + leaks.references, 0U);
}

}  // namespace

}  // namespace linewright
