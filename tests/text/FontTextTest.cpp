#include "text/FontText.h"

#include <gtest/gtest.h>

#include <map>

#include "text/FontCharacters.h"
#include "text/Utf8.h"

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

TEST(FontText, IsValidAndComesBackWhole) {
    const std::string text = FontText(AllBytes());
    EXPECT_EQ(FirstInvalidUtf8(text), std::nullopt);
    EXPECT_EQ(FontStringFromText(text), AllBytes());
    EXPECT_EQ(FontStringFromText(""), "");
}

TEST(FontText, IsRefusedWhereACharacterHasNoByte) {
    for (const char* const text : {"12漢", "1\n2", "\x7F", "\u0100", "\uFFFD", "\uF041", "a\xFF"}) {
        EXPECT_EQ(FontStringFromText(text), std::nullopt) << testing::PrintToString(text);
    }
}

/** Each character that the fonts have, by docs/fonts.md, with its byte. */
std::map<char32_t, int> CharactersOfTheFonts() {
    std::map<char32_t, int> bytes;
    for (int byte = 0; byte < 256; ++byte) {
        const auto value = static_cast<char32_t>(byte);
        if (byte >= 32 && byte <= 126) {
            bytes[value] = byte;
            continue;
        }
        bytes[0xF000 + value] = byte;
        if (byte < 32) bytes[0x2400 + value] = byte;
        if (byte > 127) bytes[value] = byte;
    }
    bytes[0x2421] = 127;
    const std::u32string_view windows = U"€ ‚ƒ„…†‡ˆ‰Š‹Œ Ž  ‘’“”•–—˜™š›œ žŸ";
    for (std::size_t i = 0; i < windows.size(); ++i) {
        if (windows[i] != U' ') bytes[windows[i]] = static_cast<int>(128 + i);
    }
    return bytes;
}

TEST(FontCharacters, AreReadBackWhereverTheFontsHaveThemAndNowhereElse) {
    const std::map<char32_t, int> expected = CharactersOfTheFonts();
    EXPECT_EQ(expected.size(), 95U + 161 + 32 + 128 + 1 + 27);
    for (char32_t character = 0; character <= 0x10FFFF; ++character) {
        const auto byte = ByteOfFontCharacter(character);
        const auto found = expected.find(character);
        ASSERT_EQ(byte ? *byte : -1, found == expected.end() ? -1 : found->second)
            << std::uint32_t{character};
    }
}

}  // namespace

}  // namespace linewright
