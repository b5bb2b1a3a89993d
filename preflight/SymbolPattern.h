#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "types/BarcodeType.h"

namespace linewright {

/** Which elements of a line are a symbol, and what they should be. */
struct SymbolPattern {
    /** Of the first bar. */
    std::size_t first = 0;
    /** Whether it is read from the line's end: first is then its last bar. */
    bool isReversed = false;
    /** For each element, in the symbol's order, its modules; of symbologies with two widths 1 for
     *  narrow and 2 for wide, and 0 for a gap between characters, which may have any width. */
    std::vector<int> nominal{};
    /** Whether wide elements have a width of their own, and modules do not count. */
    bool hasTwoWidths = false;
    /** Whether all bars are of one width, and their heights say what they stand for. */
    bool hasHeights = false;
    /** Of Interleaved 2 of 5 and MSI: the digits. */
    std::string digits{};
};

/** Symbols of the EAN and UPC family by their elements. */
enum class EanUpcForm { kThirteenOrTwelve, kEight, kUpcE };

/** What is looked for along a line. */
struct PatternQuery {
    Symbology symbology = Symbology::kText;
    EanUpcForm form = EanUpcForm::kThirteenOrTwelve;
    /** The characters in the bars, or of postal symbols the bars, as far as they say how many
     *  elements there are. */
    std::size_t length = 0;
    /** Of Interleaved 2 of 5 and MSI: the digits that it is to have; "" for any. */
    std::string_view digits{};
};

/** Looks for a symbol that begins with a bar among the widths of a line's elements (a space, a bar,
 *  …, a space), either way round: the one that covers most of the elements from `from` to `to`. */
std::optional<SymbolPattern> FindPattern(const PatternQuery& query,
                                         const std::vector<double>& widths, std::size_t from,
                                         std::size_t to);

}  // namespace linewright
