#include <gtest/gtest.h>

#include "current/Code128Auto.h"
#include "tests/ZintSymbol.h"
#include "tests/current/Code128Decoder.h"
#include "tests/current/RandomText.h"

// Another encoder switches code sets elsewhere, so what is compared is what symbols decode to. That
// libzint's decode too shows that the decoder reads Code 128.

namespace linewright {

namespace {

std::string ZintDecoded(int symbology, const std::string& data) {
    return DecodeCode128(RunsOf(ZintModules(symbology, data)));
}

std::string Decoded(const std::string& data, bool replaceEscapes = false) {
    FixedText<kCode128AutoCapacity> symbol;
    EXPECT_EQ(BuildCode128Auto(data.c_str(), replaceEscapes, symbol), kEncoded);
    Elements elements = BarsFontElements(symbol.View());
    elements.pop_back();
    return DecodeCode128(elements);
}

TEST(Code128Zint, SaysTheSame) {
    std::mt19937 random(15417);
    std::string ascii;
    for (char c = 1; c < 127; ++c) ascii += c;
    const std::string alphabets[] = {ascii, "0123456789", "0123456789012345678901234567890A\ta"};
    for (int round = 0; round < 3000; ++round) {
        const std::string data =
            RandomText(random, alphabets[round % 3], 1, 25);  // it takes no more
        ASSERT_EQ(ZintDecoded(BARCODE_CODE128, data), data);
        ASSERT_EQ(Decoded(data), data);
    }
}

TEST(Code128Zint, ElementStrings) {
    const std::pair<std::string, std::string> kPairs[] = {
        {"(01)09501101530003(17)251231(10)AB-123", "[01]09501101530003[17]251231[10]AB-123"},
        {"(01)0950110153000~m13(21)4711(17)251231", "[01]09501101530003[21]4711[17]251231"},
        {"~20210AB-123~20221X", "[10]AB-123[21]X"},
        {"(00)34012345123456789~m17", "[00]340123451234567895"},
        {"(3103)001250(37)12(01)09501101530003", "[3103]001250[37]12[01]09501101530003"},
    };
    for (const auto& [ours, theirs] : kPairs)
        EXPECT_EQ(Decoded(ours, true), ZintDecoded(BARCODE_GS1_128, theirs)) << ours;
}

}  // namespace

}  // namespace linewright
