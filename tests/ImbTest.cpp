#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "imb/ImbBarMap.h"
#include "imb/ImbEncode.h"
#include "tests/ImbDecoder.h"
#include "tests/ImbRandomCode.h"

namespace linewright {
namespace {

constexpr const char* kTracking = "01234567094987654321";

using Bars = std::array<char, kImbBarCount + 1>;

std::string Encoded(const ImbCode& code) {
    Bars bars{};
    EXPECT_EQ(ImbEncode(code.tracking.c_str(), code.routing.c_str(), bars.data()),
              USPS_FSB_ENCODER_API_SUCCESS)
        << code.tracking << '-' << code.routing;
    EXPECT_EQ(bars.back(), '\0');
    return std::string(bars.data(), kImbBarCount);
}

/** Random codes of every routing length, and the smallest and largest of each. */
std::vector<ImbCode> Codes(int randomPerLength) {
    std::mt19937 random(20240521);
    std::vector<ImbCode> codes;
    for (const std::size_t length : kImbRoutingLengths) {
        codes.push_back({std::string(20, '0'), std::string(length, '0')});
        codes.push_back({"94" + std::string(18, '9'), std::string(length, '9')});
        for (int count = 0; count < randomPerLength; ++count) {
            codes.push_back(RandomImbCode(random, length));
        }
    }
    return codes;
}

// ---------------------------------------------------------------------------- published examples

struct Example {
    const char* routing;
    ImbBinaryValue value;
    std::uint32_t frameCheckSequence;
    const char* bars;
};

// USPS-B-3200, encoding examples. Values and sequences were also worked out apart, by polynomial
// division of the whole 102-bit integer.
constexpr Example kExamples[] = {
    {"",
     {0x00, 0x00, 0x00, 0x00, 0x00, 0x11, 0x22, 0x10, 0x3B, 0x5C, 0x20, 0x04, 0xB1},
     0x051,
     "ATTFATTDTTADTAATTDTDTATTDAFDDFADFDFTFFFFFTATFAAAATDFFTDAADFTFDTDT"},
    {"01234",
     {0x00, 0x00, 0x00, 0x0D, 0x13, 0x8A, 0x87, 0xBA, 0xB5, 0xCF, 0x38, 0x04, 0xB1},
     0x065,
     "DTTAFADDTTFTDTFTFDTDDADADAFADFATDDFTAAAFDTTADFAAATDFDTDFADDDTDFFT"},
    {"012345678",
     {0x00, 0x02, 0x02, 0xBD, 0xC0, 0x97, 0x71, 0x12, 0x04, 0xD2, 0x18, 0x04, 0xB1},
     0x606,
     "ADFTTAFDTTTTFATTADTAAATFTFTATDAAAFDDADATATDTDTTDFDTDATADADTDFFTFA"},
    {"01234567891",
     {0x01, 0x69, 0x07, 0xB2, 0xA2, 0x4A, 0xBC, 0x16, 0xA2, 0xE5, 0xC0, 0x04, 0xB1},
     0x751,
     "AADTFFDFTDADTAADAATFDTDDAAADDTDTTDAFADADDDTFFFDDTTTADFAAADFTDAADA"},
};

TEST(ImbEncode, ReproducesThePublishedExamples) {
    for (const Example& example : kExamples) {
        EXPECT_EQ(Encoded({kTracking, example.routing}), example.bars) << example.routing;
        Bars bars{};
        EXPECT_EQ(ImbEncodeCore(kTracking, example.routing, bars.data()),
                  USPS_FSB_ENCODER_API_SUCCESS);
        EXPECT_STREQ(bars.data(), example.bars);
    }
}

TEST(ImbFrameCheckSequence, ReproducesThePublishedExamples) {
    for (const Example& example : kExamples) {
        EXPECT_EQ(ImbFrameCheckSequence(example.value), example.frameCheckSequence);
    }
}

TEST(ImbFrameCheckSequence, LooksAtTheLow102BitsOnly) {
    ImbBinaryValue value = kExamples[3].value;
    value[0] |= 0xC0;
    EXPECT_EQ(ImbFrameCheckSequence(value), kExamples[3].frameCheckSequence);
    value[0] ^= 0x20;
    EXPECT_NE(ImbFrameCheckSequence(value), kExamples[3].frameCheckSequence);
}

// ------------------------------------------------------------------------------------- arguments

struct Refusal {
    const char* tracking;
    const char* routing;
    ImbResult result;
};

constexpr Refusal kRefusals[] = {
    {nullptr, nullptr, USPS_FSB_ENCODER_API_TRACK_STRING_IS_NULL},
    {nullptr, "1", USPS_FSB_ENCODER_API_TRACK_STRING_IS_NULL},
    {"x", nullptr, USPS_FSB_ENCODER_API_ROUTE_STRING_IS_NULL},
    {"", "", USPS_FSB_ENCODER_API_TRACK_STRING_BAD_LENGTH},
    {"0123456709498765432", "", USPS_FSB_ENCODER_API_TRACK_STRING_BAD_LENGTH},
    {"012345670949876543210", "", USPS_FSB_ENCODER_API_TRACK_STRING_BAD_LENGTH},
    {"0123456709498765432101234567891", "", USPS_FSB_ENCODER_API_TRACK_STRING_BAD_LENGTH},
    {"x9", "1", USPS_FSB_ENCODER_API_TRACK_STRING_BAD_LENGTH},
    {"0923456709498765432x", "1", USPS_FSB_ENCODER_API_TRACK_STRING_NOT_DIGITS},
    {"/1234567094987654321", "", USPS_FSB_ENCODER_API_TRACK_STRING_NOT_DIGITS},
    {":1234567094987654321", "", USPS_FSB_ENCODER_API_TRACK_STRING_NOT_DIGITS},
    {"0123456709 987654321", "", USPS_FSB_ENCODER_API_TRACK_STRING_NOT_DIGITS},
    {"01234567094987654\xB2"
     "21",
     "", USPS_FSB_ENCODER_API_TRACK_STRING_NOT_DIGITS},
    {"05234567094987654321", "1", USPS_FSB_ENCODER_API_TRACK_STRING_BAD_DIGIT2},
    {"09234567094987654321", "", USPS_FSB_ENCODER_API_TRACK_STRING_BAD_DIGIT2},
    {kTracking, "x", USPS_FSB_ENCODER_API_ROUTE_STRING_BAD_LENGTH},
    {kTracking, "0123456789123456789012345678901234567890",
     USPS_FSB_ENCODER_API_ROUTE_STRING_BAD_LENGTH},
    {kTracking, "0123x", USPS_FSB_ENCODER_API_ROUTE_STRING_NOT_DIGITS},
    {kTracking, "x12345678", USPS_FSB_ENCODER_API_ROUTE_STRING_NOT_DIGITS},
    {kTracking, "0123456789-", USPS_FSB_ENCODER_API_ROUTE_STRING_NOT_DIGITS},
};

TEST(ImbEncode, TestsItsArgumentsInOrder) {
    for (const Refusal& refusal : kRefusals) {
        SCOPED_TRACE(testing::Message() << (refusal.tracking ? refusal.tracking : "none") << " / "
                                        << (refusal.routing ? refusal.routing : "none"));
        Bars bars{};
        EXPECT_EQ(ImbEncode(refusal.tracking, refusal.routing, bars.data()), refusal.result);
    }
}

TEST(ImbEncode, LooksForTheBufferAfterTheStringsAndBeforeTheirContents) {
    EXPECT_EQ(ImbEncode(nullptr, nullptr, nullptr), USPS_FSB_ENCODER_API_TRACK_STRING_IS_NULL);
    EXPECT_EQ(ImbEncode("x", nullptr, nullptr), USPS_FSB_ENCODER_API_ROUTE_STRING_IS_NULL);
    EXPECT_EQ(ImbEncode("x", "x", nullptr), USPS_FSB_ENCODER_API_BAR_STRING_IS_NULL);
    EXPECT_EQ(ImbEncode(kTracking, "", nullptr), USPS_FSB_ENCODER_API_BAR_STRING_IS_NULL);
}

TEST(ImbEncode, TakesSecondDigitsUpToFour) {
    for (char digit = '0'; digit <= '9'; ++digit) {
        std::string tracking = kTracking;
        tracking[1] = digit;
        Bars bars{};
        EXPECT_EQ(ImbEncode(tracking.c_str(), "", bars.data()),
                  digit <= '4' ? USPS_FSB_ENCODER_API_SUCCESS
                               : USPS_FSB_ENCODER_API_TRACK_STRING_BAD_DIGIT2);
    }
}

TEST(ImbEncode, TakesRoutingCodesOfFourLengths) {
    for (std::size_t length = 0; length <= 64; ++length) {
        const bool valid =
            std::count(std::begin(kImbRoutingLengths), std::end(kImbRoutingLengths), length) == 1;
        const ImbResult expected =
            valid ? USPS_FSB_ENCODER_API_SUCCESS : USPS_FSB_ENCODER_API_ROUTE_STRING_BAD_LENGTH;
        const std::string routing(length, '7');
        Bars bars{};
        EXPECT_EQ(ImbEncode(kTracking, routing.c_str(), bars.data()), expected) << length;
        EXPECT_EQ(ImbEncodeCore(kTracking, routing.c_str(), bars.data()), expected) << length;
    }
}

TEST(ImbEncode, WritesNoMoreThan66Bytes) {
    std::array<char, 80> bars;
    bars.fill('#');
    ASSERT_EQ(ImbEncode(kTracking, "01234567891", bars.data()), USPS_FSB_ENCODER_API_SUCCESS);
    EXPECT_EQ(std::string_view(bars.data()).size(), 65u);
    EXPECT_EQ(std::count(bars.begin() + 66, bars.end(), '#'), 14);
}

// -------------------------------------------------------------------------------- N-of-13 tables

void ExpectFullTable(int bitCount, int length) {
    std::vector<std::uint32_t> table(static_cast<std::size_t>(length));
    ASSERT_EQ(ImbBuildNof13Table(table.data(), bitCount, length), 1);
    for (const std::uint32_t entry : table) {
        EXPECT_EQ(std::popcount(entry), bitCount);
        EXPECT_EQ(entry >> 13, 0u);
    }
    std::sort(table.begin(), table.end());
    EXPECT_EQ(std::unique(table.begin(), table.end()), table.end());
}

TEST(ImbBuildNof13Table, HoldsEveryCharacterOnce) {
    ExpectFullTable(5, 1287);  // 13! / (5! 8!)
    ExpectFullTable(2, 78);    // 13! / (2! 11!)
}

TEST(ImbBuildNof13Table, PutsPairsInFrontAndPalindromesAtTheBack) {
    std::array<std::uint32_t, 78> table{};
    ASSERT_EQ(ImbBuildNof13Table(table.data(), 2, 78), 1);
    // Bits 0 and 1 with their mirror image, bits 11 and 12; then bits 0 and 2.
    EXPECT_EQ(table[0], 0x0003u);
    EXPECT_EQ(table[1], 0x1800u);
    EXPECT_EQ(table[2], 0x0005u);
    EXPECT_EQ(table[3], 0x1400u);
    // The six palindromes, the smallest (bits 5 and 7) last.
    const std::array<std::uint32_t, 6> palindromes{0x1001, 0x0802, 0x0404, 0x0208, 0x0110, 0x00A0};
    EXPECT_TRUE(std::equal(palindromes.begin(), palindromes.end(), table.end() - 6));
}

TEST(ImbBuildNof13Table, RefusesAWrongLengthAndStaysWithinTheTable) {
    constexpr std::uint32_t kUntouched = 0xFFFFFFFF;
    for (const int length : {-1, 0, 1, 2, 3, 66, 71, 72, 73, 77, 79, 80, 200}) {
        std::vector<std::uint32_t> table(210, kUntouched);
        std::uint32_t* const start = table.data() + 5;
        EXPECT_EQ(ImbBuildNof13Table(start, 2, length), 0) << length;
        EXPECT_EQ(std::count(table.data(), start, kUntouched), 5) << length;
        const int used = std::max(length, 0);
        EXPECT_EQ(std::count(start + used, table.data() + 210, kUntouched), 205 - used) << length;
    }
    std::array<std::uint32_t, 1288> table{};
    EXPECT_EQ(ImbBuildNof13Table(table.data(), 5, 1286), 0);
    EXPECT_EQ(ImbBuildNof13Table(table.data(), 5, 1288), 0);
}

// ------------------------------------------------------------------------------------ round trip

TEST(ImbRoundTrip, BringsBackTheDigits) {
    for (const ImbCode& code : Codes(2500)) {
        ASSERT_EQ(DecodeImb(Encoded(code)), code) << code.tracking << '-' << code.routing;
    }
}

TEST(ImbRoundTrip, FindsEverySingleWrongBar) {
    for (const ImbCode& code : Codes(3)) {
        const std::string right = Encoded(code);
        for (std::size_t bar = 0; bar < right.size(); ++bar) {
            for (const char letter : std::string_view("ADFT")) {
                std::string read = right;
                read[bar] = letter;
                EXPECT_EQ(DecodeImb(read).has_value(), letter == right[bar])
                    << right << " bar " << bar + 1 << ' ' << letter;
            }
        }
    }
}

/** The bars with all 13 bits of one character inverted. */
std::string WithInvertedCharacter(std::string bars, std::size_t character) {
    constexpr std::string_view kLetters = "TADF";  // bit 0: ascender, bit 1: descender
    for (std::size_t index = 0; index < bars.size(); ++index) {
        std::size_t shape = kLetters.find(bars[index]);
        if (kImbBarMap[index].ascender.character == character) shape ^= 1;
        if (kImbBarMap[index].descender.character == character) shape ^= 2;
        bars[index] = kLetters[shape];
    }
    return bars;
}

// An inverted character is a character too, so only the frame check sequence can tell.
TEST(ImbRoundTrip, FindsAnInvertedCharacterByTheFrameCheckSequence) {
    for (const ImbCode& code : Codes(3)) {
        const std::string right = Encoded(code);
        for (std::size_t character = 0; character < kImbCharacterCount; ++character) {
            const std::string wrong = WithInvertedCharacter(right, character);
            EXPECT_FALSE(DecodeImb(wrong)) << right << " character " << character;
            EXPECT_EQ(DecodeImb(WithInvertedCharacter(wrong, character)), code);
        }
    }
}

TEST(ImbDecoder, RefusesWhatIsNo65Bars) {
    const std::string right = Encoded({kTracking, ""});
    EXPECT_TRUE(DecodeImb(right));
    EXPECT_FALSE(DecodeImb(right.substr(1)));
    EXPECT_FALSE(DecodeImb(right + 'T'));
    EXPECT_FALSE(DecodeImb('t' + right.substr(1)));
    EXPECT_FALSE(DecodeImb(std::string(65, 'T')));
}

}  // namespace
}  // namespace linewright
