#include <gtest/gtest.h>

#include "meaning/PlugInConversion.h"
#include "text/Hex.h"

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

}  // namespace

}  // namespace linewright
