#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <set>
#include <string>

#include "types/BarcodeTypes.h"
#include "types/WrittenType.h"

namespace linewright {

namespace {

using testing::ElementsAre;

// --------------------------------------------------------------------------------- the table

TEST(BarcodeTypes, HaveNamesAndCodesOfTheirOwn) {
    std::set<std::string_view> names;
    std::set<std::string_view> keys;
    std::set<TypeCode> codes;
    for (const BarcodeType& type : kBarcodeTypes) {
        EXPECT_TRUE(names.insert(type.name).second) << type.name;
        EXPECT_TRUE(names.insert(type.shortName).second) << type.shortName;
        EXPECT_TRUE(keys.insert(type.displayKey).second) << type.displayKey;
        EXPECT_TRUE(codes.insert(type.code).second) << type.name;
        EXPECT_EQ(FindTypeByPrefix(type.name), &type) << type.name;
    }
    EXPECT_EQ(codes.size(), 27U);
}

TEST(BarcodeTypes, HaveAFontUnlessTheyHaveNoBars) {
    for (const BarcodeType& type : kBarcodeTypes)
        EXPECT_EQ(type.face == nullptr, type.symbology == Symbology::kText) << type.name;
}

TEST(BarcodeTypes, AreWithinTheirOwnRangeOfWidths) {
    for (const BarcodeType& type : kBarcodeTypes) {
        EXPECT_GT(type.dimensions.xLeast, 0) << type.name;
        EXPECT_GE(type.dimensions.xDimension, type.dimensions.xLeast) << type.name;
        EXPECT_LE(type.dimensions.xDimension, type.dimensions.xLargest) << type.name;
    }
}

TEST(BarcodeTypes, AreFoundByTheirBeginningAsInThePlugIn) {
    const auto codeOf = [](std::string_view name) {
        const BarcodeType* const type = FindTypeByPrefix(name);
        return type ? static_cast<int>(type->code) : 0;
    };
    EXPECT_EQ(codeOf("_QVT_BARCODE_I2OF5_TEXT_"), 25);
    EXPECT_EQ(codeOf("_QVT_BARCODE_I2OF5_TEXT"), 24);
    EXPECT_EQ(codeOf("_BARCODE_EAN13_ and more"), 10);
    EXPECT_EQ(codeOf("_barcode_ean13_"), 0);
    EXPECT_EQ(codeOf("_QVT_BARCODE_EAN8_"), 0);
    EXPECT_EQ(codeOf(""), 0);
}

// -------------------------------------------------------------------------- what people write

struct Written {
    const char* text;
    const char* name;
    Expectation expectation = Expectation::kNone;
};

TEST(WrittenType, IsFoundByWhatPeopleWrite) {
    constexpr Written kRows[]{
        {"imb", "_BARCODE_USPS_IM_"},
        {"ean8", "_BARCODE_EAN8_"},
        {"EAN-13", "_QVT_BARCODE_EAN13_"},
        {"Code39", "_QVT_BARCODE_CODE39_"},
        {"Code 39", "_QVT_BARCODE_CODE39_"},
        {"classic-code39", "_BARCODE_CODE39_"},
        {"UPC-A", "_QVT_BARCODE_UPCA_"},
        {"ISBN", "_QVT_BARCODE_EAN13_"},
        {"ISSN", "_QVT_BARCODE_EAN13_"},
        {"GS1-128", "_QVT_BARCODE_CODE128_", Expectation::kIdentifiers},
        {"ITF-14", "_QVT_BARCODE_I2OF5_", Expectation::kFourteenDigits},
        {"Interleaved 2 of 5", "_QVT_BARCODE_I2OF5_"},
        {"_BARCODE_EAN13_", "_BARCODE_EAN13_"},
        {"_BARCODE_EAN13_ ", "_BARCODE_EAN13_"},
    };
    for (const Written& row : kRows) {
        const WrittenType found = FindWrittenType(row.text);
        ASSERT_NE(found.type, nullptr) << row.text;
        EXPECT_EQ(found.type->name, row.name) << row.text;
        EXPECT_EQ(found.expectation, row.expectation) << row.text;
    }
}

TEST(WrittenType, IsNoneForAnythingElse) {
    for (const std::string text : {"", "-", "ean14", "code128a", "_barcode_ean13_", "ean13x"})
        EXPECT_EQ(FindWrittenType(text).type, nullptr) << text;
    EXPECT_EQ(FindWrittenType("ean13" + std::string(1'000'000, ' ')).type, nullptr);
}

TEST(WrittenType, IsOfferedByLikeness) {
    EXPECT_THAT(NearestTypeNames("eann13"), ElementsAre("ean13", "jan13", "ean8"));
    EXPECT_EQ(NearestTypeNames("EAN9").front(), "ean8");
    EXPECT_EQ(NearestTypeNames("clasic-upc-a").front(), "classic-upca");
    EXPECT_EQ(NearestTypeNames("_BARCODE_EAN_13_").front(), "_BARCODE_EAN13_");
    EXPECT_EQ(NearestTypeNames("").size(), 3U);
    EXPECT_EQ(NearestTypeNames(std::string(1'000'000, 'x')).size(), 3U);
}

// ------------------------------------------------------------------------------ the front page

/** The rows "| `short` | `name` | font |" of README's table, by short name and name. */
std::vector<std::string> ReadMeRows() {
    std::ifstream file(LINEWRIGHT_TESTS "/../README.md");
    const std::regex row(R"(\| `([^`]+)` \| `(_[^`]+)` \| ([^|]+) \|)");
    std::vector<std::string> rows;
    std::smatch match;
    for (std::string line; std::getline(file, line);)
        if (std::regex_match(line, match, row))
            rows.push_back(match[1].str() + ' ' + match[2].str() + ' ' + match[3].str());
    return rows;
}

TEST(ReadMe, ListsTheTypes) {
    std::vector<std::string> expected;
    expected.reserve(kBarcodeTypes.size());
    for (const BarcodeType& type : kBarcodeTypes)
        expected.push_back(std::string(type.shortName) + ' ' + std::string(type.name) + ' ' +
                           std::string(type.face ? type.face->family : "any text font"));
    EXPECT_THAT(ReadMeRows(), testing::UnorderedElementsAreArray(expected));
}

}  // namespace

}  // namespace linewright
