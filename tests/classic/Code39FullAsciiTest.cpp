#include <gtest/gtest.h>

#include "classic/Code39.h"
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

}  // namespace

}  // namespace linewright
