#include "meaning/Meaning.h"

#include <gtest/gtest.h>

#include "core/FixedText.h"
#include "current/Ean13.h"
#include "tests/JsonLines.h"
#include "tests/TestHost.h"
#include "tests/VectorCalls.h"
#include "tests/render/Drawn.h"
#include "tests/render/RandomData.h"
#include "scanners/Verification.h"

// The rows of scans.jsonl: what data means, what is warned about, and what the scanners say.

namespace linewright {

namespace {

/** A member that is text of which each character is a byte, as often as `times` says. */
std::string Bytes(const nlohmann::json& row, const char* name) {
    const std::string bytes = BytesOf(row.value(name, ""));
    std::string repeated;
    for (std::size_t i = row.value("times", std::size_t{1}); i > 0; --i) repeated += bytes;
    return repeated;
}

class MeaningTest : public testing::TestWithParam<JsonLine> {
    TestHost host;
};

TEST_P(MeaningTest, IsWarnedAboutAndScansAsStated) {
    const nlohmann::json& row = GetParam().fields;
    const std::string type = row.at("type");
    const std::string data = Bytes(row, "data");
    const bool isCheckWanted = row.value("check", false);
    const Meaning meaning = MeaningOf({type, data, isCheckWanted, {}});
    EXPECT_EQ(meaning.warnings, row.value("warnings", std::vector<std::string>()));
    if (row.contains("carried")) {
        EXPECT_EQ(meaning.carried, Bytes(row, "carried"));
    }
    EXPECT_EQ(meaning.addOn, row.value("addOn", ""));
    EXPECT_EQ(meaning.isGs1, row.value("gs1", false));
    const std::string fontString = Encoded(type, data, isCheckWanted, row.value("ratio", 2.0));
    EXPECT_EQ(Verify(Drawn(type, fontString), meaning).Words(), row.at("scan"));
    EXPECT_FALSE(row.at("from").empty());
}

INSTANTIATE_TEST_SUITE_P(Rows, MeaningTest,
                         testing::ValuesIn(ReadJsonLines(LINEWRIGHT_TESTS "/render/scans.jsonl")),
                         NameOfParameter);

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
