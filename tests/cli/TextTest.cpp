#include <gtest/gtest.h>

#include "cli/FontText.h"
#include "cli/Hex.h"
#include "cli/PlugInConversion.h"
#include "cli/Utf8.h"

namespace linewright {

namespace {

std::string AllBytes() {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    return bytes;
}

TEST(FontText, LeavesPrintableAsciiAlone) {
    const std::string ascii = AllBytes().substr(32, 95);
    EXPECT_EQ(FontText(ascii), ascii);
}

TEST(FontText, ShowsControlCharactersAsTheirPictures) {
    EXPECT_EQ(FontText(std::string("\0\t\x1F\x7F", 4)), "\u2400\u2409\u241F\u2421");
}

// The Unicode Consortium's mapping table of code page 1252.
TEST(FontText, UsesWindows1252) {
    EXPECT_EQ(FontText("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"), "€‚ƒ„…†‡ˆ‰Š‹ŒŽ");
    EXPECT_EQ(FontText("\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"),
              "‘’“”•–—˜™š›œžŸ");
    EXPECT_EQ(FontText("\xA0\xC0\xE9\xFF"), "\u00A0Àéÿ");
}

TEST(FontText, HasPrivateCharactersForTheFiveWithoutOne) {
    EXPECT_EQ(FontText("\x81\x8D\x8F\x90\x9D"), "\uF081\uF08D\uF08F\uF090\uF09D");
}

TEST(FontText, IsValidAndDifferentForEachByte) {
    const std::string text = FontText(AllBytes());
    EXPECT_FALSE(FirstInvalidUtf8(text));
    std::vector<std::string> characters;
    for (const char byte : AllBytes()) characters.push_back(FontText({&byte, 1}));
    std::sort(characters.begin(), characters.end());
    EXPECT_EQ(std::adjacent_find(characters.begin(), characters.end()), characters.end());
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

// Unicode standard, table 3-7.
TEST(Utf8, FindsTheFirstByteThatIsNone) {
    EXPECT_EQ(FirstInvalidUtf8("aé€😀\xF4\x8F\xBF\xBF"), std::nullopt);
    EXPECT_EQ(FirstInvalidUtf8("a\x80"), 1U);
    EXPECT_EQ(FirstInvalidUtf8("\xC0\x80"), 0U);
    EXPECT_EQ(FirstInvalidUtf8("\xE0\x9F\xBF"), 0U);
    EXPECT_EQ(FirstInvalidUtf8("\xED\xA0\x80"), 0U);
    EXPECT_EQ(FirstInvalidUtf8("\xF0\x8F\xBF\xBF"), 0U);
    EXPECT_EQ(FirstInvalidUtf8("\xF4\x90\x80\x80"), 0U);
    EXPECT_EQ(FirstInvalidUtf8("\xF5\x80\x80\x80"), 0U);
    EXPECT_EQ(FirstInvalidUtf8("ab\xE2\x82"), 2U);
    EXPECT_EQ(FirstInvalidUtf8("ab\xE2\x82z"), 2U);
}

TEST(Utf8, MakesAnythingReadable) {
    EXPECT_EQ(Readable("é\n\x1B\x7F\xFF\xC2\x85z"), "é\u240A\u241B\u2421\uFFFD\uFFFDz");
    EXPECT_EQ(Utf8FromLatin1("a\xE9\xFF"), "aéÿ");
    std::string text;
    AppendUtf8(text, 0xD800);
    AppendUtf8(text, 0x110000);
    AppendUtf8(text, 0x1F600);
    EXPECT_EQ(text, "\uFFFD\uFFFD😀");
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
