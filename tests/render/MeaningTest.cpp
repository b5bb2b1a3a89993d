#include "meaning/Meaning.h"

#include <gtest/gtest.h>

#include <fstream>
#include <nlohmann/json.hpp>

#include "core/FixedText.h"
#include "current/Ean13.h"
#include "tests/TestHost.h"
#include "tests/render/Drawn.h"
#include "tests/render/RandomData.h"
#include "scanners/Verification.h"

// The rows of scans.jsonl: what data means, what is warned about, and what the scanners say.

namespace linewright {

namespace {

struct Row {
    int line;
    nlohmann::json fields;

    /** Text of which each character is a byte. */
    std::string Bytes(const char* name) const {
        const std::string utf8 = fields.value(name, "");
        std::string bytes;
        for (std::size_t i = 0; i < utf8.size(); ++i) {
            const auto lead = static_cast<unsigned char>(utf8[i]);
            bytes +=
                lead < 0x80 ? utf8[i] : static_cast<char>((lead & 3) << 6 | (utf8[++i] & 0x3F));
        }
        const std::size_t times = fields.value("times", std::size_t{1});
        std::string repeated;
        for (std::size_t i = 0; i < times; ++i) repeated += bytes;
        return repeated;
    }
};

std::vector<Row> Rows() {
    std::vector<Row> rows;
    std::ifstream file(LINEWRIGHT_TESTS "/render/scans.jsonl", std::ios::binary);
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
    *out << row.fields;
}

class MeaningTest : public testing::TestWithParam<Row> {
    TestHost host;
};

TEST_P(MeaningTest, IsWarnedAboutAndScansAsStated) {
    const nlohmann::json& row = GetParam().fields;
    const std::string type = row.at("type");
    const std::string data = GetParam().Bytes("data");
    const bool isCheckWanted = row.value("check", false);
    const Meaning meaning = MeaningOf({type, data, isCheckWanted, {}});
    EXPECT_EQ(meaning.warnings, row.value("warnings", std::vector<std::string>()));
    if (row.contains("carried")) {
        EXPECT_EQ(meaning.carried, GetParam().Bytes("carried"));
    }
    EXPECT_EQ(meaning.addOn, row.value("addOn", ""));
    EXPECT_EQ(meaning.isGs1, row.value("gs1", false));
    const std::string fontString = Encoded(type, data, isCheckWanted, row.value("ratio", 2.0));
    EXPECT_EQ(Verify(Drawn(type, fontString), meaning).Words(), row.at("scan"));
    EXPECT_FALSE(row.at("from").empty());
}

INSTANTIATE_TEST_SUITE_P(Rows, MeaningTest, testing::ValuesIn(Rows()), NameOf);

/** No request reaches the add-ons of the current EAN-13; its builder makes them all the same. */
TEST(Ean13AddOns, AreRead) {
    TestHost host;
    RandomData random(13);
    constexpr std::string_view kType = "_QVT_BARCODE_EAN13_";
    for (int count = 0; count < LINEWRIGHT_SYMBOLS; ++count) {
        const std::string number = random.Digits(12);
        const std::string addOn = random.Digits(count % 2 == 0 ? 2 : 5);
        FixedText<kLongestEan13> symbol;
        ASSERT_EQ(BuildEan13((number + addOn).c_str(), symbol), 0);
        Meaning meaning = MeaningOf({kType, number, false, {}});
        meaning.addOn = addOn;
        meaning.task.hasAddOn = true;
        const BarcodeDrawing drawing = Drawn(kType, std::string(symbol.View()));
        const Verification found = Verify(drawing, meaning, 1 + count / 2 % 4);
        for (const Reading& reading : found.readings) {
            EXPECT_TRUE(reading.isMeant) << reading.scanner << " of " << number << " +" << addOn
                                         << " reads " << ShownData(reading);
        }
    }
}

}  // namespace

}  // namespace linewright
