#pragma once

#include <string>
#include <string_view>

struct zint_symbol;

namespace linewright::bench {

/** How to see that a font string and a symbol of libzint's print the same: what each prints, in one
 *  form of text. */
struct Bars {
    std::string (*ofFontString)(std::string_view fontString);
    std::string (*ofZint)(const zint_symbol& symbol);
};

/** Code 128 in the bars font. */
extern const Bars kCode128Bars;
/** Symbologies of two widths in the bars font. */
extern const Bars kTwoWidthBars;
/** Code 39 in the classic font. */
extern const Bars kClassicCode39Bars;
/** EAN and UPC; what is between a symbol and its add-on does not count. */
extern const Bars kRetailBars;
extern const Bars kPostnetBars;
extern const Bars kIntelligentMailBars;

}  // namespace linewright::bench
