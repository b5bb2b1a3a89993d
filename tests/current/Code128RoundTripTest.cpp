#include <gtest/gtest.h>

#include "core/FixedText.h"
#include "current/Code128Auto.h"
#include "tests/current/Code128Decoder.h"
#include "tests/current/RandomText.h"

// What the builder writes is decoded again by its letters, start, code sets and check character.

namespace linewright {

namespace {

std::string Decoded(const std::string& data, bool replaceEscapes = false) {
    FixedText<kCode128AutoCapacity> symbol;
    EXPECT_EQ(BuildCode128Auto(data.c_str(), replaceEscapes, symbol), kEncoded);
    Elements elements = BarsFontElements(symbol.View());
    EXPECT_EQ(elements.back(), 4);  // with the stop character's last bar
    elements.pop_back();
    return DecodeCode128(elements);
}

TEST(Code128RoundTrip, EveryCharacterBelowDel) {
    std::mt19937 random(128);
    std::string ascii;
    for (char c = 1; c < 127; ++c) ascii += c;
    const std::string alphabets[] = {
        ascii, "0123456789", "0123456789012345678901234567890123456789A\ta", "\x01\x1f !_`az09"};
    for (int round = 0; round < 4000; ++round) {
        const std::string data =
            RandomText(random, alphabets[round % 4], 1, round < 100 ? 512 : 60);
        ASSERT_EQ(Decoded(data), data);
    }
}

TEST(Code128RoundTrip, DelIsLeftOut) {
    EXPECT_EQ(Decoded("12\x7f"
                      "3\x7f"
                      "456a\x7f"),
              "123456a");
}

/** Bytes that stand for function characters, with what they are in set B. */
TEST(Code128RoundTrip, FunctionCharacters) {
    EXPECT_EQ(Decoded("a\xc4\xc5\xc8z"), "a<FNC3><FNC2><FNC4>z");
    EXPECT_EQ(Decoded("a\xc6zz"), "a\x1az");  // Shift: the value of "z" is SUB in set A
    EXPECT_EQ(Decoded("1234\xc4"
                      "1234\xc5"
                      "1234\xc8"),
              "1234<FNC3>1234<FNC2>1234<FNC4>");
    EXPECT_EQ(Decoded("a\xc3z"), "a\x7fz");

    std::mt19937 random(202);
    for (int round = 0; round < 2000; ++round) {
        std::string data;
        std::string expected;
        for (int piece = 0; piece < 8; ++piece) {
            const std::string text =
                RandomText(random, "0123456789012345678901234567890aB\t", 1, 9);
            data += text + static_cast<char>(202 + random() % 17);
            expected += text + "<FNC1>";
        }
        ASSERT_EQ(Decoded(data), expected);
        ASSERT_EQ(Decoded("\xca" + data), "<FNC1>" + expected);
    }
}

/** The element strings that the command's documentation explains. */
TEST(Code128RoundTrip, ElementStrings) {
    EXPECT_EQ(Decoded("(01)09501101530003(17)251231(10)AB-123", true),
              "<FNC1>01095011015300031725123110AB-123");
    EXPECT_EQ(Decoded("(01)0950110153000~m13(21)4711(17)251231", true),
              "<FNC1>0109501101530003214711<FNC1>17251231");
    EXPECT_EQ(Decoded("~20210AB-123~20221X", true), "<FNC1>10AB-123<FNC1>21X");
    EXPECT_EQ(Decoded("(00)34012345123456789~m17", true), "<FNC1>00340123451234567895");
}

}  // namespace

}  // namespace linewright
