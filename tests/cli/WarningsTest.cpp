#include <gtest/gtest.h>

#include <fstream>
#include <nlohmann/json.hpp>

#include "cli/Encoding.h"
#include "cli/Hex.h"
#include "tests/cli/CommandRunner.h"

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
            .checkCharacter = static_cast<uint8>(fields.value("check", false) ? 1 : 0),
        };
    }
    std::vector<std::string> Expected() const { return fields.at("warnings"); }
};

std::vector<Row> Rows() {
    std::vector<Row> rows;
    std::ifstream file(LINEWRIGHT_TESTS "/meaning/warnings.jsonl", std::ios::binary);
    int number = 0;
    for (std::string line; std::getline(file, line);) {
        rows.push_back({++number, nlohmann::json::parse(line)});
    }
    return rows;
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
