#include "preflight/PostalReader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "imb/ImbDecode.h"
#include "preflight/BarChains.h"
#include "preflight/SymbolReader.h"

namespace linewright {

namespace {

constexpr std::size_t kIntelligentMailBars = 65;
/** Frame bars, and five bars a digit: of 5, 9 or 11 digits, and of one more that makes the sum a
 *  multiple of ten. */
constexpr std::array<std::size_t, 6> kPostnetBars{27, 32, 47, 52, 57, 62};

/** A chain's bars without what it leans: tops and bottoms above and below a straight line. */
struct Ends {
    std::vector<double> tops;
    std::vector<double> bottoms;
};

Ends EndsOf(const BarChain& chain) {
    double x = 0;
    double y = 0;
    for (const PixelBox& bar : chain) {
        x += (bar.left + bar.right) / 2.0;
        y += (bar.top + bar.bottom) / 2.0;
    }
    const auto count = static_cast<double>(chain.size());
    x /= count;
    y /= count;
    double along = 0;
    double across = 0;
    for (const PixelBox& bar : chain) {
        const double distance = (bar.left + bar.right) / 2.0 - x;
        along += distance * distance;
        across += distance * ((bar.top + bar.bottom) / 2.0 - y);
    }
    const double lean = along > 0 ? across / along : 0;
    Ends ends;
    ends.tops.reserve(chain.size());
    ends.bottoms.reserve(chain.size());
    for (const PixelBox& bar : chain) {
        const double line = y + lean * ((bar.left + bar.right) / 2.0 - x);
        ends.tops.push_back(bar.top - line);
        ends.bottoms.push_back(bar.bottom - line);
    }
    return ends;
}

/** Whether each value is beyond the middle of the smallest and the largest. */
std::vector<bool> AreLarge(const std::vector<double>& values) {
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    const double middle = (*least + *most) / 2;
    std::vector<bool> areLarge;
    areLarge.reserve(values.size());
    for (const double value : values) areLarge.push_back(value > middle);
    return areLarge;
}

double Spread(const std::vector<double>& values) {
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    return *most - *least;
}

/** Letters in the order of reading; `isUpsideDown` has ascenders below. */
std::string Letters(const Ends& ends, bool isReversed, bool isUpsideDown) {
    const std::vector<bool> isLowTop = AreLarge(ends.tops);
    const std::vector<bool> isLowBottom = AreLarge(ends.bottoms);
    std::string letters;
    for (std::size_t place = 0; place < isLowTop.size(); ++place) {
        const bool reachesUp = isUpsideDown ? isLowBottom[place] : !isLowTop[place];
        const bool reachesDown = isUpsideDown ? !isLowTop[place] : isLowBottom[place];
        letters += reachesUp ? (reachesDown ? 'F' : 'A') : (reachesDown ? 'D' : 'T');
    }
    if (isReversed) std::reverse(letters.begin(), letters.end());
    return letters;
}

bool ReadIntelligentMail(const Ends& ends, bool isTurned, RasterSymbol& symbol) {
    for (const bool isReversed : {false, true}) {
        const std::string letters = Letters(ends, isReversed, isReversed != isTurned);
        const auto digits = ImbDecode(letters);
        if (!digits) continue;
        symbol.symbology = Symbology::kIntelligentMail;
        symbol.isReversed = isReversed;
        symbol.reading.data = letters;
        symbol.reading.said = digits->tracking + digits->routing;
        return true;
    }
    return false;
}

/** Domestic Mail Manual 708.4: the bars of a digit weigh 7, 4, 2, 1 and 0, and two are tall; 4 + 7
 *  stand for 0. */
std::string PostnetDigits(const std::vector<bool>& isTall) {
    if (!isTall.front() || !isTall.back()) return "";
    constexpr std::array<int, 5> kWeights{7, 4, 2, 1, 0};
    std::string digits;
    int sum = 0;
    for (std::size_t first = 1; first + 5 < isTall.size() + 1 && first + 1 < isTall.size();
         first += 5) {
        int tall = 0;
        int digit = 0;
        for (std::size_t bar = 0; bar < 5; ++bar) {
            if (!isTall[first + bar]) continue;
            ++tall;
            digit += kWeights[bar];
        }
        if (tall != 2) return "";
        digit %= 11;
        sum += digit;
        digits += static_cast<char>('0' + digit);
    }
    const bool hasCheckDigit = digits.size() == 6 || digits.size() == 10 || digits.size() == 12;
    return hasCheckDigit && sum % 10 != 0 ? "" : digits;
}

bool ReadPostnet(const Ends& ends, bool isTurned, RasterSymbol& symbol) {
    std::vector<double> heights;
    heights.reserve(ends.tops.size());
    for (std::size_t place = 0; place < ends.tops.size(); ++place) {
        heights.push_back(ends.bottoms[place] - ends.tops[place]);
    }
    const auto [low, tall] = std::minmax_element(heights.begin(), heights.end());
    if (*tall < 1.5 * *low || *tall > 5 * *low) return false;
    const bool areTopsEven = Spread(ends.tops) < Spread(ends.bottoms);
    if (std::min(Spread(ends.tops), Spread(ends.bottoms)) > 0.5 * (*tall - *low)) return false;
    std::vector<bool> isTall = AreLarge(heights);
    symbol.isReversed = areTopsEven != isTurned;
    if (symbol.isReversed) std::reverse(isTall.begin(), isTall.end());
    symbol.reading.data = PostnetDigits(isTall);
    symbol.reading.said = symbol.reading.data;
    symbol.symbology = Symbology::kPostnet;
    return !symbol.reading.data.empty();
}

}  // namespace

std::vector<RasterSymbol> ReadPostal(const GreyRaster& picture, double pixelsPerMillimetre,
                                     bool isTurned) {
    const std::vector<BarChain> chains = FindBarChains(picture, pixelsPerMillimetre);
    std::vector<RasterSymbol> symbols;
    symbols.reserve(chains.size());
    for (const BarChain& chain : chains) {
        const bool isPostnet =
            std::find(kPostnetBars.begin(), kPostnetBars.end(), chain.size()) != kPostnetBars.end();
        if (!isPostnet && chain.size() != kIntelligentMailBars) continue;
        const Ends ends = EndsOf(chain);
        RasterSymbol symbol;
        if (isPostnet ? !ReadPostnet(ends, isTurned, symbol)
                      : !ReadIntelligentMail(ends, isTurned, symbol)) {
            continue;
        }
        symbol.reading.isFound = true;
        symbol.isConfirmed = true;
        symbol.box = chain.front();
        for (const PixelBox& bar : chain) {
            symbol.box.top = std::min(symbol.box.top, bar.top);
            symbol.box.bottom = std::max(symbol.box.bottom, bar.bottom);
            symbol.box.right = std::max(symbol.box.right, bar.right);
        }
        symbols.push_back(std::move(symbol));
    }
    return symbols;
}

}  // namespace linewright
