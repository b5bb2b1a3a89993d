#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "standards/TableChecks.h"

namespace linewright {

/** Symbol values of the three start characters; the check character is a sum modulo 103. */
inline constexpr std::size_t kCode128StartA = 103;
inline constexpr std::size_t kCode128StartB = 104;
inline constexpr std::size_t kCode128StartC = 105;
inline constexpr std::size_t kCode128Modulus = 103;

/** ISO/IEC 15417:2007, table 1: element widths in modules (bar, space, bar, space, bar, space) by
 *  symbol value, the three start characters included. */
inline constexpr std::array<std::string_view, 106> kCode128Widths{
    // clang-format off
    // 0
    "212222", "222122", "222221", "121223", "121322",
    "131222", "122213", "122312", "132212", "221213",
    // 10
    "221312", "231212", "112232", "122132", "122231",
    "113222", "123122", "123221", "223211", "221132",
    // 20
    "221231", "213212", "223112", "312131", "311222",
    "321122", "321221", "312212", "322112", "322211",
    // 30
    "212123", "212321", "232121", "111323", "131123",
    "131321", "112313", "132113", "132311", "211313",
    // 40
    "231113", "231311", "112133", "112331", "132131",
    "113123", "113321", "133121", "313121", "211331",
    // 50
    "231131", "213113", "213311", "213131", "311123",
    "311321", "331121", "312113", "312311", "332111",
    // 60
    "314111", "221411", "431111", "111224", "111422",
    "121124", "121421", "141122", "141221", "112214",
    // 70
    "112412", "122114", "122411", "142112", "142211",
    "241211", "221114", "413111", "241112", "134111",
    // 80
    "111242", "121142", "121241", "114212", "124112",
    "124211", "411212", "421112", "421211", "212141",
    // 90
    "214121", "412121", "111143", "111341", "131141",
    "114113", "114311", "411113", "411311", "113141",
    // 100
    "114131", "311141", "411131", "211412", "211214",
    "211232",
    // clang-format on
};

/** The stop character has a fourth bar. */
inline constexpr std::string_view kCode128StopWidths = "2331112";

/** Six elements of one to four modules, 11 modules together, of which the bars take an even
 *  number. */
constexpr bool IsCode128Character(std::string_view widths) {
    return widths.size() == 6 && ConsistsOf(widths, "1234") && ModuleCount(widths) == 11 &&
           ModuleCount(widths, 2) % 2 == 0;
}

static_assert(AllRows(kCode128Widths, IsCode128Character));
static_assert(AllDifferent(kCode128Widths));
static_assert(ModuleCount(kCode128StopWidths) == 13);

}  // namespace linewright
