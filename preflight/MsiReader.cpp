#include "preflight/MsiReader.h"

#include <cmath>
#include <map>

#include "preflight/SymbolReader.h"
#include "standards/CheckDigits.h"

namespace linewright {

namespace {

/** Rows that a line is the mean of, against noise. */
constexpr int kRows = 5;
constexpr int kLines = 7;
/** A number without a check digit must be this long, or else data has to confirm it. */
constexpr std::size_t kSureDigits = 6;
/** White beside a symbol, in narrow elements: half of what is usual. */
constexpr double kLeastQuiet = 5;
constexpr std::size_t kFewestDigits = 3;

std::vector<std::uint8_t> MeanRow(const GreyRaster& picture, int middle) {
    std::vector<std::uint8_t> mean;
    mean.reserve(static_cast<std::size_t>(picture.width));
    for (int x = 0; x < picture.width; ++x) {
        int sum = 0;
        for (int row = middle - kRows / 2; row <= middle + kRows / 2; ++row) {
            sum += picture.At(x, row);
        }
        mean.push_back(static_cast<std::uint8_t>(sum / kRows));
    }
    return mean;
}

bool HasCheckDigit(std::string_view digits) {
    return MsiModulo10CheckDigit(digits.substr(0, digits.size() - 1)) == digits.back();
}

struct Line {
    double begin;
    double end;
    int row;
    bool isReversed;
};

}  // namespace

std::vector<RasterSymbol> ReadMsi(const GreyRaster& picture, double pixelsPerMillimetre) {
    if (picture.height < 2 * kRows || picture.width < kRows) return {};
    const double width = picture.width / pixelsPerMillimetre;
    std::map<std::string, std::vector<Line>> linesOf;
    for (int line = 1; line <= kLines; ++line) {
        const int row = kRows / 2 + line * (picture.height - kRows) / (kLines + 1);
        const std::vector<std::uint8_t> pixels = MeanRow(picture, row);
        const LineScan scan =
            ScanPixels(pixels.data(), picture.width, 0, pixelsPerMillimetre, 0, width);
        const auto pattern = PatternIn(scan, {.symbology = Symbology::kMsi}, 0, width);
        if (!pattern || pattern->digits.size() < kFewestDigits) continue;
        const std::size_t count = pattern->nominal.size();
        const std::size_t low = pattern->isReversed ? pattern->first + 1 - count : pattern->first;
        const double begin = scan.elements[low].begin;
        const double end = scan.elements[low + count - 1].end;
        const double narrow = (end - begin) / (static_cast<double>(count) * 1.5);
        const bool isFree = scan.elements[low - 1].Width() >= kLeastQuiet * narrow &&
                            scan.elements[low + count].Width() >= kLeastQuiet * narrow;
        if (!isFree && !HasCheckDigit(pattern->digits) && pattern->digits.size() < kSureDigits) {
            continue;
        }
        linesOf[pattern->digits].push_back({begin, end, row, pattern->isReversed});
    }
    std::vector<RasterSymbol> symbols;
    symbols.reserve(linesOf.size());
    for (const auto& [digits, lines] : linesOf) {
        const bool hasCheckDigit = HasCheckDigit(digits);
        if (lines.size() < (hasCheckDigit ? 2 : 3)) continue;
        const Line& middle = lines[lines.size() / 2];
        RasterSymbol symbol;
        symbol.symbology = Symbology::kMsi;
        symbol.reading.isFound = true;
        symbol.reading.data = digits;
        symbol.reading.said = digits;
        symbol.isConfirmed = true;
        symbol.isReversed = middle.isReversed;
        symbol.isDoubtful = !hasCheckDigit && digits.size() < kSureDigits;
        symbol.box = {static_cast<int>(std::lround(middle.begin * pixelsPerMillimetre)), middle.row,
                      static_cast<int>(std::lround(middle.end * pixelsPerMillimetre)),
                      middle.row + 1};
        symbols.push_back(std::move(symbol));
    }
    return symbols;
}

}  // namespace linewright
