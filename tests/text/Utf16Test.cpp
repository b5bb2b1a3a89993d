#include "text/Utf16.h"

#include <gtest/gtest.h>

#include "text/Utf8.h"

namespace linewright {

namespace {

TEST(Utf16, WritesPairsAboveTheFirstPlane) {
    EXPECT_EQ(Utf16FromUtf8("aé€😀"), u"aé€\xD83D\xDE00");
    EXPECT_EQ(Utf16FromUtf8("\U0010FFFF"), u"\xDBFF\xDFFF");
    EXPECT_EQ(Utf16FromUtf8("\U00010000"), u"\xD800\xDC00");
    EXPECT_EQ(Utf8FromUtf16(u"aé€\xD83D\xDE00"), "aé€😀");
}

TEST(Utf16, GoesThereAndBackForEveryScalarValue) {
    for (char32_t character = 0; character <= 0x10FFFF; ++character) {
        if (character == 0xD800) character = 0xE000;
        const std::string utf8 = Utf8FromCharacters({&character, 1});
        const std::u16string units = Utf16FromUtf8(utf8);
        ASSERT_EQ(units.size(), character < 0x10000 ? 1U : 2U) << std::uint32_t{character};
        ASSERT_EQ(Utf8FromUtf16(units), utf8);
    }
}

TEST(Utf16, ReplacesSurrogatesThatAreNoPair) {
    EXPECT_EQ(Utf8FromUtf16(u"\xD83D"), "\uFFFD");
    EXPECT_EQ(Utf8FromUtf16(u"\xDE00z"), "\uFFFDz");
    EXPECT_EQ(Utf8FromUtf16(u"\xD83Dz"), "\uFFFDz");
    EXPECT_EQ(Utf8FromUtf16(u"\xDE00\xD83D"), "\uFFFD\uFFFD");
    EXPECT_EQ(Utf8FromUtf16(u"\xD83D\xD83D\xDE00"), "\uFFFD😀");
}

TEST(Utf16, ReplacesWhatIsNotUtf8) {
    EXPECT_EQ(Utf16FromUtf8("a\xED\xA0\xBDz"), u"a\uFFFD\uFFFD\uFFFDz");
}

}  // namespace

}  // namespace linewright
