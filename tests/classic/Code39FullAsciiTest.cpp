#include <gtest/gtest.h>

#include <initializer_list>
#include <random>

#include "classic/Code39.h"
#include "standards/Code39Patterns.h"
#include "tests/Rounds.h"
#include "tests/TestBlock.h"

namespace linewright {

namespace {

/** ISO/IEC 16388, the table of full ASCII, typed out. */
constexpr std::string_view kPairs[] = {
    // 0
    "%U", "$A", "$B", "$C", "$D", "$E", "$F", "$G", "$H", "$I", "$J", "$K", "$L", "$M", "$N", "$O",
    // 16
    "$P", "$Q", "$R", "$S", "$T", "$U", "$V", "$W", "$X", "$Y", "$Z", "%A", "%B", "%C", "%D", "%E",
    // 32
    " ", "/A", "/B", "/C", "/D", "/E", "/F", "/G", "/H", "/I", "/J", "/K", "/L", "-", ".", "/O",
    // 48
    "0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "/Z", "%F", "%G", "%H", "%I", "%J",
    // 64
    "%V", "A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K", "L", "M", "N", "O",
    // 80
    "P", "Q", "R", "S", "T", "U", "V", "W", "X", "Y", "Z", "%K", "%L", "%M", "%N", "%O",
    // 96
    "%W", "+A", "+B", "+C", "+D", "+E", "+F", "+G", "+H", "+I", "+J", "+K", "+L", "+M", "+N", "+O",
    // 112
    "+P", "+Q", "+R", "+S", "+T", "+U", "+V", "+W", "+X", "+Y", "+Z", "%P", "%Q", "%R", "%S", "%T",
    // 128: dropped
    ""};
static_assert(std::size(kPairs) == 129);

TEST(Code39FullAscii, FollowsThePublishedTable) {
    for (std::size_t byte = 0; byte < std::size(kPairs); ++byte) {
        PString string = MakePString(std::string(1, static_cast<char>(byte)));
        EXPECT_EQ(ExpandCode39FullAscii(string), 0) << byte;
        EXPECT_EQ(string.View(), kPairs[byte]) << byte;
    }
}

TEST(Code39FullAscii, RefusesWhatIsAbove128) {
    for (int byte = 129; byte < 256; ++byte) {
        const std::string text{'a', static_cast<char>(byte), 'b'};
        PString string = MakePString(text);
        EXPECT_EQ(ExpandCode39FullAscii(string), -1) << byte;
        EXPECT_EQ(string.View(), text) << byte;
    }
}

/** The symbol, or what stands in its place. */
std::string Built(std::string_view data, bool fullAscii, uint16 checkMode) {
    FixedText<kCode39ClassicCapacity> symbol;
    const std::string_view marker = BuildCode39Classic(
        data, {.fullAscii = fullAscii, .checkMode = checkMode, .useAsterisk = true}, symbol);
    return std::string(marker.empty() ? symbol.View() : marker);
}

/** Letter by letter, with a check character modulo 43. */
std::string Walked(std::string_view data) {
    std::string symbol = "*";
    std::size_t sum = 0;
    for (const char character : data) {
        const auto value = Code39Value(character);
        if (!value) return "***Bad Code 39***";
        symbol += character == ' ' ? '!' : character;
        sum += *value;
    }
    const char check = kCode39Characters[sum % kCode39Characters.size()];
    symbol += check == ' ' ? '!' : check;
    return symbol + '*';
}

TEST(Code39FullAscii, IsWrittenAsTheCharactersItExpandsTo) {
    std::mt19937 random(16388);
    for (int round = 0; round < Rounds(); ++round) {
        std::string data(random() % 128, '0');
        const unsigned bytes = round % 8 == 0 ? 256 : round % 2 == 0 ? 129 : 10;
        for (char& byte : data) byte = static_cast<char>((round % 2 ? '0' : 0) + random() % bytes);
        PString expanded = MakePString(data);
        ExpandCode39FullAscii(expanded);
        for (const uint16 checkMode : std::initializer_list<uint16>{0, 1, 2})
            ASSERT_EQ(Built(data, true, checkMode), Built(expanded.View(), false, checkMode))
                << testing::PrintToString(data) << " with check mode " << checkMode;
        ASSERT_EQ(Built(expanded.View(), false, 2), Walked(expanded.View()))
            << testing::PrintToString(data);
    }
}

}  // namespace

}  // namespace linewright
