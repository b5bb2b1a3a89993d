#include "requests/BarcodeOutcome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "host/runtime/Paths.h"
#include "requests/RequestFailure.h"
#include "tests/JsonLines.h"

namespace linewright {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

namespace fs = std::filesystem;

/** The plug-in in a host with folders of its own, for the length of a test. */
class BarcodeOutcomeTest : public testing::Test {
  protected:
    BarcodeOutcomeTest() {
        fs::create_directories(folder / "app");
        service.emplace(HostOptions{.plugin = LINEWRIGHT_PLUGIN,
                                    .roamingFolder = host::Utf8FromPath(folder),
                                    .appFolder = host::Utf8FromPath(folder / "app"),
                                    .locale = "enUS"});
    }
    ~BarcodeOutcomeTest() override {
        const host::Leaks leaks = service->Stop();
        EXPECT_EQ(leaks.blocks, 0U);
        EXPECT_EQ(leaks.references, 0U);
        std::error_code ignored;
        fs::remove_all(folder, ignored);
    }

    BarcodeOutcome Made(const BarcodeWish& wish) { return MakeBarcode(*service, wish); }
    fs::path PreferencesFile() const { return folder / "Corvane/Config/QVT Linewright.prf"; }

    fs::path folder = fs::temp_directory_path() /
                      ("linewright-requests-" + std::to_string(std::random_device()()));
    std::optional<Service> service;
};

TEST_F(BarcodeOutcomeTest, HasTheFontStringOfAType) {
    const BarcodeOutcome outcome = Made({.type = "ean13", .data = "4006381333931"});
    EXPECT_TRUE(outcome.IsMade());
    EXPECT_EQ(outcome.bytes, "Y(0A63IB*NNNTNL(");
    EXPECT_EQ(outcome.typeName, "_QVT_BARCODE_EAN13_");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.Warnings(), IsEmpty());
    EXPECT_EQ(outcome.meaning.carried, "4006381333931");
}

TEST_F(BarcodeOutcomeTest, SendsATypeNameAsItWasWritten) {
    EXPECT_EQ(Made({.type = "_QVT_BARCODE_EAN13_ more", .data = "1"}).typeName,
              "_QVT_BARCODE_EAN13_ more");
}

TEST_F(BarcodeOutcomeTest, NamesTheNearestTypesOfAnUnknownOne) {
    for (const std::string& type :
         {std::string("eann13"), std::string(), "_BARCODE_EAN13_" + std::string(300, 'x')}) {
        const BarcodeOutcome outcome = Made({.type = type, .data = "1"});
        ASSERT_TRUE(outcome.refusal) << type;
        EXPECT_EQ(outcome.refusal->reason, RefusalReason::kUnknownType) << type;
        EXPECT_EQ(outcome.refusal->texts.size(), 3U) << type;
        EXPECT_EQ(outcome.status, std::nullopt) << type;
    }
}

TEST_F(BarcodeOutcomeTest, HasThePlugInsReasonForARefusal) {
    const BarcodeOutcome hinted = Made({.type = "ean13", .data = "4OO6"});
    EXPECT_EQ(hinted.status, -6301);
    EXPECT_EQ(hinted.refusal->reason, RefusalReason::kPlugIn);
    EXPECT_THAT(hinted.refusal->texts, ElementsAre(hinted.hint));
    EXPECT_EQ(hinted.bytes, "");

    const BarcodeOutcome marked = Made({.type = "classic-code39", .data = "a"});
    EXPECT_EQ(marked.hint, "");
    EXPECT_THAT(marked.refusal->texts, ElementsAre("Bad Code 39"));
}

TEST_F(BarcodeOutcomeTest, IsARefusalWithoutAFontStringWhereWarningsAreNone) {
    const BarcodeWish wish{.type = "ean13", .data = "4006381333937"};
    EXPECT_EQ(Made(wish).Warnings().size(), 1U);
    EXPECT_TRUE(Made(wish).IsMade());

    BarcodeWish strict = wish;
    strict.isStrict = true;
    const BarcodeOutcome outcome = Made(strict);
    EXPECT_EQ(outcome.refusal->reason, RefusalReason::kStrict);
    EXPECT_EQ(outcome.bytes, "");
    EXPECT_EQ(outcome.status, std::nullopt);
    EXPECT_EQ(outcome.Warnings().size(), 1U);
}

TEST_F(BarcodeOutcomeTest, BringsAnArticleNumberToTheFormOfItsType) {
    BarcodeWish wish{.type = "ean13", .data = "0-306-40615-2", .checkCharacter = 1};
    EXPECT_EQ(Made(wish).status, -6301) << "not without being asked";
    wish.isArticleNumber = true;
    wish.isStrict = true;
    const BarcodeOutcome outcome = Made(wish);
    EXPECT_TRUE(outcome.IsMade()) << "a note is no warning";
    EXPECT_EQ(outcome.note->reason, NumberReason::kBrought);
    EXPECT_EQ(outcome.meaning.carried, "9780306406157");

    wish.type = "i2of5";
    EXPECT_EQ(Made(wish).meaning.carried, "09780306406157") << "has its check digit already";

    wish.data = "0-306-40615-3";
    const BarcodeOutcome refused = Made(wish);
    EXPECT_EQ(refused.refusal->reason, RefusalReason::kNumber);
    EXPECT_EQ(refused.refusal->number->reason, NumberReason::kWrongCheckDigit);
    EXPECT_EQ(refused.bytes, "");
}

/** The rows of tests/meaning/: what is warned about is made all the same, and strictness refuses
 *  it. */
TEST_F(BarcodeOutcomeTest, WarnsOfTheRows) {
    for (const JsonLine& row : ReadJsonLines(LINEWRIGHT_TESTS "/meaning/warnings.jsonl")) {
        if (!row.fields.contains("data")) continue;
        BarcodeWish wish;
        wish.type = row.fields.at("type");
        wish.data = row.fields.at("data");
        wish.checkCharacter = row.fields.value("check", false) ? 1 : 0;
        const bool isWarnedOf = !row.fields.at("warnings").empty();
        const BarcodeOutcome outcome = Made(wish);
        EXPECT_TRUE(outcome.IsMade()) << row.fields;
        EXPECT_EQ(!outcome.Warnings().empty(), isWarnedOf) << row.fields;
        wish.isStrict = true;
        EXPECT_EQ(Made(wish).IsMade(), !isWarnedOf) << row.fields;
        EXPECT_EQ(Made(wish).bytes, isWarnedOf ? "" : outcome.bytes) << row.fields;
    }
}

// Whoever read the file would put defaults in the place of what is none of ours.
TEST_F(BarcodeOutcomeTest, ReadsNoPreferences) {
    std::ofstream(PreferencesFile(), std::ios::binary) << "nonsense";
    for (const char* const type : {"classic-code39", "classic-i2of5", "classic-codabar"})
        EXPECT_TRUE(Made({.type = type, .data = "12"}).IsMade()) << type;
    std::ifstream file(PreferencesFile(), std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), "nonsense");
}

TEST(RequestFailureTest, NamesTheHostsReason) {
    try {
        const Service service(HostOptions{.plugin = "/nowhere/Linewright.so"});
        ADD_FAILURE() << "started";
    } catch (const RequestFailure& failure) {
        EXPECT_EQ(failure.reason, FailureReason::kHost);
        EXPECT_THAT(failure.parameter, testing::HasSubstr("/nowhere/Linewright.so"));
    }
}

}  // namespace

}  // namespace linewright
