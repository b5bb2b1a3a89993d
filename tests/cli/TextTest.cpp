#include <gtest/gtest.h>

#include "cli/Hex.h"
#include "cli/PlugInConversion.h"
#include "cli/TypeNames.h"

namespace linewright {

namespace {

std::string AllBytes() {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    return bytes;
}

TEST(Hex, GoesBothWays) {
    EXPECT_EQ(ToHex(std::string("\0\x7F\xAB\xFF", 4)), "007fabff");
    EXPECT_EQ(FromHex("007fABff"), std::string("\0\x7F\xAB\xFF", 4));
    EXPECT_EQ(FromHex(ToHex(AllBytes())), AllBytes());
    EXPECT_EQ(FromHex(""), "");
}

TEST(Hex, RefusesWhatIsNoPairs) {
    for (const char* const text : {"0", "0g", "g0", " 00", "0x", "00 ", "-1", "é"}) {
        EXPECT_EQ(FromHex(text), std::nullopt) << text;
    }
}

TEST(PlugInConversion, ReadsLeniently) {
    EXPECT_EQ(ConvertLikePlugIn("aé€z").bytes, "a\xE9z");
    EXPECT_EQ(ConvertLikePlugIn("aé€z").dropped, std::vector<char32_t>{0x20AC});
    EXPECT_EQ(ConvertLikePlugIn("\x80\xF8\xFF").bytes, "\x80\xF8\xFF");
    EXPECT_EQ(ConvertLikePlugIn("\xC1\x21").bytes, "a") << "top bits of what follows do not count";
    EXPECT_EQ(ConvertLikePlugIn("a\xF0\x9F\x98").bytes, "a\xF0\x9F\x98");
}

TEST(PlugInConversion, TrimsSpacesUnlessThereIsNothingElse) {
    EXPECT_EQ(TrimLikePlugIn("  a b "), "a b");
    EXPECT_EQ(TrimLikePlugIn("\ta\n"), "\ta\n");
    EXPECT_EQ(TrimLikePlugIn("   "), "   ");
    EXPECT_EQ(TrimLikePlugIn(""), "");
}

TEST(TypeNames, AreFoundByTheirShortNames) {
    EXPECT_EQ(TypeNameOf("imb"), "_BARCODE_USPS_IM_");
    EXPECT_EQ(TypeNameOf("ean8"), "_BARCODE_EAN8_");
    EXPECT_EQ(TypeNameOf("code39"), "_QVT_BARCODE_CODE39_");
    EXPECT_EQ(TypeNameOf("classic-code39"), "_BARCODE_CODE39_");
    EXPECT_EQ(TypeNameOf("anything else"), "anything else");
    EXPECT_EQ(ShortNameOf("_QVT_BARCODE_I2OF5_TEXT_"), "i2of5-text");
    EXPECT_EQ(ShortNameOf("ean13"), "");
}

TEST(TypeNames, AreOfferedByLikeness) {
    EXPECT_EQ(NearestNames("ean-13").front(), "ean13");
    EXPECT_EQ(NearestNames("EAN8").front(), "ean8");
    EXPECT_EQ(NearestNames("clasic-upc-a").front(), "classic-upca");
    EXPECT_EQ(NearestNames("_BARCODE_EAN_13_").front(), "_BARCODE_EAN13_");
    EXPECT_EQ(NearestNames("").size(), 3U);
    EXPECT_EQ(NearestNames(std::string(1'000'000, 'x')).size(), 3U);
}

}  // namespace

}  // namespace linewright
