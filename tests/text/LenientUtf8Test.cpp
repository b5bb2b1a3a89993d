#include "text/LenientUtf8.h"

#include <gtest/gtest.h>

#include <random>

#include "core/ConvertUtf8Data.h"
#include "meaning/PlugInConversion.h"
#include "tests/TestBlock.h"
#include "tests/TestHost.h"
#include "text/Utf8.h"

namespace linewright {

namespace {

std::u32string Read(std::string_view bytes) {
    std::u32string characters;
    LenientUtf8 reader(bytes);
    while (const auto character = reader.Next()) characters += *character;
    return characters;
}

struct Row {
    const char* what;
    std::string_view bytes;
    std::u32string characters;
};

const Row kRows[] = {
    {"nothing", "", U""},
    {"valid text", "aé€😀", U"aé€😀"},
    {"bytes that begin nothing", "\x80\xBF\xF8\xFF", {0x80, 0xBF, 0xF8, 0xFF}},
    {"the top bits of what follows do not count", "\xC1\x21\xE1\x41\xFF", {'a', 0x107F}},
    {"overlong forms", "\xC0\x80\xE0\x81\xA1\xF0\x80\x83\xA9", {0, 'a', 0xE9}},
    {"a surrogate", "\xED\xA0\x80", {0xD800}},
    {"above U+10FFFF", "\xF7\xBF\xBF\xBF", {0x1FFFFF}},
    {"cut short after one of two", "a\xC3", {'a', 0xC3}},
    {"cut short after two of three", "\xE2\x82", {0xE2, 0x82}},
    {"cut short after three of four", "\xF0\x9F\x98", {0xF0, 0x9F, 0x98}},
    {"whole again behind what is cut short", "\xF0\xC3\xA9", {0xF0, 0xC3, 0xA9}},
};

TEST(LenientUtf8, RefusesNothing) {
    for (const Row& row : kRows) EXPECT_EQ(Read(row.bytes), row.characters) << row.what;
}

TEST(LenientUtf8, ReadsValidTextAsItIs) {
    for (char32_t character = 0; character <= 0x10FFFF; ++character) {
        if (character == 0xD800) character = 0xE000;
        ASSERT_EQ(Read(Utf8FromCharacters({&character, 1})), std::u32string(1, character));
    }
}

/** The bytes that are left of characters, of which those above 255 are left out. */
std::string Kept(std::u32string_view characters) {
    std::string bytes;
    for (const char32_t character : characters) {
        if (character < 256) bytes += static_cast<char>(character);
    }
    return bytes;
}

TEST(LenientUtf8, IsWhatThePlugInAndItsForetellingRead) {
    const TestHost host;
    std::mt19937 random(256);
    for (int count = 0; count < 20'000; ++count) {
        std::string bytes(random() % 24, '\0');
        // Every second row is mostly lead and continuation bytes.
        for (char& byte : bytes) {
            byte = static_cast<char>(count % 2 == 0 ? random() : 0x80 + random() % 0x80);
        }
        const std::string kept = Kept(Read(bytes));
        TestBlock block(bytes);
        ASSERT_TRUE(ConvertUtf8Data(block.Data()));
        EXPECT_EQ(block.Text(), kept) << testing::PrintToString(bytes);
        EXPECT_EQ(ConvertLikePlugIn(bytes).bytes, kept) << testing::PrintToString(bytes);
    }
}

}  // namespace

}  // namespace linewright
