#include "text/Utf8.h"

#include <gtest/gtest.h>

#include <random>

namespace linewright {

namespace {

/** A row of malformed text: where its first bad byte is, and what comes of it. */
struct Malformed {
    const char* what;
    std::string_view bytes;
    std::size_t firstInvalid;
    std::u32string_view characters;
};

// Unicode standard, table 3-7.
constexpr Malformed kMalformed[] = {
    {"a stray continuation", "a\x80", 1, U"a\uFFFD"},
    {"overlong, two bytes", "\xC0\x80", 0, U"\uFFFD\uFFFD"},
    {"overlong, two bytes, the longest", "\xC1\xBF", 0, U"\uFFFD\uFFFD"},
    {"overlong, three bytes", "\xE0\x9F\xBF", 0, U"\uFFFD\uFFFD\uFFFD"},
    {"overlong, four bytes", "\xF0\x8F\xBF\xBF", 0, U"\uFFFD\uFFFD\uFFFD\uFFFD"},
    {"the first surrogate", "\xED\xA0\x80", 0, U"\uFFFD\uFFFD\uFFFD"},
    {"the last surrogate", "\xED\xBF\xBF", 0, U"\uFFFD\uFFFD\uFFFD"},
    {"U+110000", "\xF4\x90\x80\x80", 0, U"\uFFFD\uFFFD\uFFFD\uFFFD"},
    {"a lead byte of none", "z\xF5\x80\x80\x80", 1, U"z\uFFFD\uFFFD\uFFFD\uFFFD"},
    {"0xFF", "é\xFF", 2, U"é\uFFFD"},
    {"cut short after one of two", "ab\xC3", 2, U"ab\uFFFD"},
    {"cut short after two of three", "ab\xE2\x82", 2, U"ab\uFFFD\uFFFD"},
    {"cut short after three of four", "\xF0\x9F\x98", 0, U"\uFFFD\uFFFD\uFFFD"},
    {"broken off by a letter", "ab\xE2\x82z", 2, U"ab\uFFFD\uFFFDz"},
    {"broken off by a lead byte", "\xF0\x9F\x98é", 0, U"\uFFFD\uFFFD\uFFFDé"},
};

TEST(Utf8, ReplacesEachByteThatBelongsToNoCharacter) {
    for (const Malformed& row : kMalformed) {
        EXPECT_EQ(FirstInvalidUtf8(row.bytes), row.firstInvalid) << row.what;
        EXPECT_EQ(CharactersFromUtf8(row.bytes), row.characters) << row.what;
    }
}

TEST(Utf8, FindsNothingWrongWithWhatIsRight) {
    EXPECT_EQ(FirstInvalidUtf8(""), std::nullopt);
    EXPECT_EQ(FirstInvalidUtf8("aé€😀\xF4\x8F\xBF\xBF"), std::nullopt);
    EXPECT_EQ(CharactersFromUtf8("aé€😀"), U"aé€😀");
}

TEST(Utf8, GoesThereAndBackForEveryScalarValue) {
    for (char32_t character = 0; character <= 0x10FFFF; ++character) {
        if (character == 0xD800) character = 0xE000;
        const std::string utf8 = Utf8FromCharacters({&character, 1});
        const std::size_t length = character < 0x80      ? 1
                                   : character < 0x800   ? 2
                                   : character < 0x10000 ? 3
                                                         : 4;
        ASSERT_EQ(utf8.size(), length) << std::uint32_t{character};
        ASSERT_EQ(FirstInvalidUtf8(utf8), std::nullopt) << std::uint32_t{character};
        ASSERT_EQ(CharactersFromUtf8(utf8), std::u32string(1, character));
    }
}

TEST(Utf8, ChangesNothingButWhatIsNotValid) {
    std::mt19937 random(37);
    for (int count = 0; count < 20'000; ++count) {
        std::string bytes(random() % 8, '\0');
        for (char& byte : bytes) byte = "az\x80\xA0\xBF\xC3\xE2\xED\xF0\xF4"[random() % 10];
        const std::string again = Utf8FromCharacters(CharactersFromUtf8(bytes));
        EXPECT_EQ(FirstInvalidUtf8(again), std::nullopt);
        EXPECT_EQ(again == bytes, !FirstInvalidUtf8(bytes)) << testing::PrintToString(bytes);
    }
}

TEST(Utf8, ReplacesWhatIsNoScalarValue) {
    EXPECT_EQ(Utf8FromCharacters(std::u32string{0xD800, 0xDFFF, 0x110000, 0xFFFFFFFF, 0x1F600}),
              "\uFFFD\uFFFD\uFFFD\uFFFD😀");
}

TEST(Utf8, TakesABytesValueForItsCharacter) {
    EXPECT_EQ(Utf8FromLatin1(std::string_view("a\0\x80\xE9\xFF", 5)),
              std::string_view("a\0\u0080éÿ", 8));
}

}  // namespace

}  // namespace linewright
