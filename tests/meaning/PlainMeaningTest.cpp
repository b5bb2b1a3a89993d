#include "meaning/PlainMeaning.h"

#include <gtest/gtest.h>

#include "tests/RandomData.h"
#include "tests/Rounds.h"
#include "tests/TestHost.h"
#include "tests/meaning/MadeBarcode.h"
#include "types/WrittenType.h"

namespace linewright {

namespace {

bool IsPlainBarcode(const MadeBarcode& barcode) {
    return IsPlain({*barcode.type, barcode.data, barcode.isUtf8, barcode.isCheckWanted,
                    barcode.expectation, barcode.fontString});
}

MadeBarcode Made(std::string_view type, const std::string& data, double ratio = 2.0) {
    MadeBarcode barcode{
        .type = FindWrittenType(type).type, .data = data, .expectation = Expectation::kNone};
    EXPECT_TRUE(Make(barcode, ratio)) << type << ' ' << data;
    return barcode;
}

class PlainMeaningTest : public testing::Test {
    TestHost host;
};

TEST_F(PlainMeaningTest, KnowsOrdinaryData) {
    const std::vector<std::pair<std::string_view, std::string>> rows{
        {"ean13", "4006381333931"},
        {"ean13", "400638133393"},
        {"jan13", "4901234567894"},
        {"ean8", "96385074"},
        {"ean8", "9638507"},
        {"upca", "036000291452"},
        {"upca", "03600029145"},
        {"upce", "01234565"},
        {"upce", "1234567"},
        {"code128", "Az 09\"~m"},
        {"code128", "AB123456x7"},
        {"code39", "FIX-0042 $"},
        {"codabar", "12-34$:/.+"},
        {"i2of5", "12345678901231"},
        {"msi", "0123456789"},
        {"postnet", "123456789"},
        {"imb", "01234567094987654321"},
    };
    for (const auto& [type, data] : rows) {
        for (const double ratio : {2.0, 2.5, 3.0}) {
            EXPECT_EQ(IsPlainBarcode(Made(type, data, ratio)), data.find('~') == data.npos)
                << type << ' ' << data << ' ' << ratio;
        }
    }
}

TEST_F(PlainMeaningTest, LeavesWhatIsToBeSaidToMeaning) {
    EXPECT_FALSE(IsPlainBarcode(Made("ean13", "4006381333937"))) << "another check digit";
    EXPECT_FALSE(IsPlainBarcode(Made("ean13", "12345678905"))) << "filled up with a zero";
    EXPECT_FALSE(IsPlainBarcode(Made("i2of5", "123"))) << "filled up with a zero";
    EXPECT_FALSE(IsPlainBarcode(Made("code128", "(01)09501101530003"))) << "GS1 data";
    EXPECT_FALSE(IsPlainBarcode(Made("code128", "A\tB"))) << "a control character";
    EXPECT_FALSE(IsPlainBarcode(Made("code128", "A\x7F"))) << "DEL, which has no place";
    EXPECT_FALSE(IsPlainBarcode(Made("code39", "A "))) << "a space that is trimmed";
    EXPECT_FALSE(IsPlainBarcode(Made("postnet", "12345-6789"))) << "a character that is dropped";
    MadeBarcode itf = Made("i2of5", "1234");
    itf.expectation = Expectation::kFourteenDigits;
    EXPECT_FALSE(IsPlainBarcode(itf));
}

/** Of data and font strings as they come, and with a letter exchanged. */
TEST_F(PlainMeaningTest, SaysNothingOfWhatIsWarnedAbout) {
    constexpr std::string_view kPlain =
        "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz()*";
    const std::vector<std::string_view> alphabets{"0123456789",    "0123456789",
                                                  "0123456789-",   "0123456789ABCZ-. $/+%",
                                                  "ABz019 ~(m)\"", "a\x1D\x01\x7F\x80\xC8Z9 ",
                                                  "FIXfix01"};
    constexpr double kRatios[]{2.0, 2.5, 3.0};
    RandomData random(128);
    int plain = 0;
    int changed = 0;
    for (int round = 0; round < 3 * Rounds(); ++round) {
        MadeBarcode barcode{
            .type = &kBarcodeTypes[random.Number(0, kBarcodeTypes.size() - 1)],
            .data = random.Text(alphabets[random.Number(0, alphabets.size() - 1)],
                                random.Number(0, 33)),
            .isUtf8 = random.Number(0, 1) == 1,
            .isCheckWanted = random.Number(0, 9) == 0,
        };
        if (!Make(barcode, kRatios[random.Number(0, 2)])) continue;
        for (const bool isChanged : {false, true}) {
            if (isChanged) {
                if (barcode.fontString.empty()) break;
                char& letter = barcode.fontString[random.Number(0, barcode.fontString.size() - 1)];
                letter = barcode.fontString[random.Number(0, barcode.fontString.size() - 1)];
            }
            if (!IsPlainBarcode(barcode)) continue;
            ++(isChanged ? changed : plain);
            ASSERT_TRUE(barcode.MeaningOfIt().warnings.empty())
                << barcode.type->shortName << ' ' << barcode.data << ' ' << barcode.fontString;
            ASSERT_EQ(barcode.fontString.find_first_not_of(kPlain), std::string::npos);
        }
    }
    EXPECT_GT(plain, Rounds() / 10);
    EXPECT_GT(changed, 0);
}

}  // namespace

}  // namespace linewright
