#include "scanners/Verification.h"

#include <gtest/gtest.h>

#include "core/FixedText.h"
#include "current/Ean13.h"
#include "retail/RetailSymbol.h"
#include "tests/RandomData.h"
#include "tests/TestHost.h"
#include "tests/VectorCalls.h"
#include "tests/meaning/MadeBarcode.h"
#include "tests/render/Drawn.h"

// The rows of meaning.jsonl: what the scanners say.

namespace linewright {

namespace {

/** As the rows have it. */
std::string VerdictOf(const Verification& verification) {
    switch (verification.verdict) {
        case Verdict::kScans: return "scans";
        case Verdict::kScansAs: return "scans as " + ShownData(*verification.Other());
        case Verdict::kDoesNotScan: return "does not scan";
        case Verdict::kNoScanner: break;
    }
    return "no scanner for this symbology";
}

std::string NameOf(const testing::TestParamInfo<MeaningRow>& info) {
    return "Line" + std::to_string(info.param.number);
}

class VerificationTest : public testing::TestWithParam<MeaningRow> {
    TestHost host;
};

TEST_P(VerificationTest, ScansAsStated) {
    const nlohmann::json& row = GetParam().fields;
    MadeBarcode barcode{.type = FindTypeByPrefix(row.at("type").get<std::string>()), .data = {}};
    for (std::size_t i = 0; i < row.value("times", std::size_t{1}); ++i) {
        barcode.data += BytesOf(row.at("data"));
    }
    barcode.isCheckWanted = row.value("check", false);
    ASSERT_TRUE(Make(barcode, row.value("ratio", 2.0)));
    const BarcodeDrawing drawing = Drawn(barcode.type->name, barcode.fontString);
    EXPECT_EQ(VerdictOf(Verify(drawing, barcode.MeaningOfIt())), row.at("scan"));
}

INSTANTIATE_TEST_SUITE_P(Rows, VerificationTest,
                         testing::ValuesIn(MeaningRows("meaning/meaning.jsonl")), NameOf);

/** No request reaches the add-ons of the current EAN-13; its builder makes them all the same. */
TEST(Ean13AddOns, AreRead) {
    TestHost host;
    RandomData random(13);
    const BarcodeType* const type = FindTypeByPrefix("_QVT_BARCODE_EAN13_");
    for (int count = 0; count < LINEWRIGHT_SYMBOLS; ++count) {
        const std::string number = random.Digits(12);
        const std::string addOn = random.Digits(count % 2 == 0 ? 2 : 5);
        FixedText<kLongestEan13> symbol;
        ASSERT_EQ(BuildEan13((number + addOn).c_str(), symbol), 0);
        const MadeBarcode barcode{
            .type = type, .data = number + addOn, .fontString = std::string(symbol.View())};
        const Meaning meaning = barcode.MeaningOfIt();
        EXPECT_EQ(meaning.warnings, std::vector<Warning>());
        EXPECT_EQ(meaning.addOn, addOn);
        const BarcodeDrawing drawing = Drawn(type->name, barcode.fontString);
        const Verification found = Verify(drawing, meaning, 1 + count / 2 % 4);
        for (const Reading& reading : found.readings) {
            EXPECT_TRUE(reading.isMeant) << reading.scanner << " of " << number << " +" << addOn
                                         << " reads " << ShownData(reading);
        }
    }
}

/** What ZBar reads of an EAN-13 whose bars reach from one row to another. */
bool IsReadWithin(int height, int first, int end, ZbarView view) {
    FixedText<kLongestEan13> symbol;
    EXPECT_EQ(BuildEan13("590123412345", symbol), 0);
    const GreyRaster bars = Drawn("_QVT_BARCODE_EAN13_", std::string(symbol.View())).Raster(4);
    GreyRaster picture{bars.width, height, {}};
    for (int y = 0; y < height; ++y) {
        const std::uint8_t* const row = bars.Row(bars.height / 2);
        for (int x = 0; x < bars.width; ++x)
            picture.pixels.push_back(y >= first && y < end ? row[x] : std::uint8_t{255});
    }
    return ReadWithZbar(picture, {.symbology = Symbology::kEanUpc}, view).isFound;
}

TEST(Zbar, SkipsRowsOnlyWhereItMayAndCan) {
    // Of 96 rows every eighth is the fifth, the thirteenth and so on.
    EXPECT_TRUE(IsReadWithin(96, 0, 96, {.skipsRows = true}));
    EXPECT_FALSE(IsReadWithin(96, 5, 12, {.skipsRows = true}));
    EXPECT_TRUE(IsReadWithin(96, 5, 12, {}));
    EXPECT_TRUE(IsReadWithin(40, 5, 12, {.skipsRows = true}));
}

}  // namespace

}  // namespace linewright
