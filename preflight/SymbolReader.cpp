#include "preflight/SymbolReader.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "preflight/MsiReader.h"
#include "preflight/PostalReader.h"
#include "scanners/SpottedSymbol.h"

namespace linewright {

namespace {

/** White around a candidate that a reader is shown, along its rows and across them, in mm. */
constexpr double kAlong = 7;
constexpr double kAcross = 0.5;
constexpr int kMostInCandidate = 8;
/** An add-on of five digits and the white in front of it; the modules of the narrowest symbol. */
constexpr int kAddOnModules = 60;
constexpr int kFewestEanUpcModules = 67;
/** Fewer are read out of hatching and text. */
constexpr std::size_t kSureDigits = 6;
constexpr std::size_t kSureCodabar = 4;
/** Of bars, in mm: in what is lower, grain and corners left over, scanners read things too. */
constexpr double kLeastHeight = 1;
/** Pixels of a row that are as dark as those of the row beside it. */
constexpr double kAlike = 0.88;

/** Whether two rows are dark in the same places. */
bool AreAlike(const std::uint8_t* a, const std::uint8_t* b, int count) {
    const auto [darkest, lightest] = std::minmax_element(a, a + count);
    const int threshold = (*darkest + *lightest) / 2;
    if (*lightest - *darkest < 20) return false;
    int same = 0;
    for (int place = 0; place < count; ++place) {
        same += (a[place] > threshold) == (b[place] > threshold) ? 1 : 0;
    }
    return same >= kAlike * count;
}

/** The rows around one that are like it, each like its neighbour, which follows bars that lean. */
void FollowRows(const GreyRaster& picture, int row, PixelBox& box) {
    const int count = box.Width();
    const auto follow = [&](int step) {
        int last = row;
        for (int next = row + step; next >= 0 && next < picture.height; next += step) {
            const std::uint8_t* const here = picture.Row(last) + box.left;
            if (!AreAlike(here, picture.Row(next) + box.left, count)) break;
            last = next;
        }
        return last;
    };
    box.top = follow(-1);
    box.bottom = follow(1) + 1;
}

void PaintWhite(GreyRaster& picture, const PixelBox& box) {
    for (int y = std::max(box.top, 0); y < std::min(box.bottom, picture.height); ++y) {
        const int left = std::clamp(box.left, 0, picture.width);
        const int right = std::clamp(box.right, left, picture.width);
        std::fill(picture.Row(y) + left, picture.Row(y) + right, std::uint8_t{255});
    }
}

bool IsDoubtful(Symbology symbology, const Reading& reading) {
    if (symbology == Symbology::kInterleaved2of5) return reading.data.size() < kSureDigits;
    // Start and stop characters count not.
    if (symbology == Symbology::kCodabar) return reading.data.size() < kSureCodabar + 2;
    return false;
}

class CandidateReader {
  public:
    CandidateReader(GreyRaster& borrowed, double resolution, bool areRowsColumns)
        : picture(borrowed), pixelsPerMillimetre(resolution), isTurned(areRowsColumns) {}

    std::vector<RasterSymbol> symbols;

    void Read(const PixelBox& candidate) {
        const int along = static_cast<int>(kAlong * pixelsPerMillimetre);
        const int across = static_cast<int>(kAcross * pixelsPerMillimetre);
        const PixelBox area{candidate.left - along, candidate.top - across, candidate.right + along,
                            candidate.bottom + across};
        for (int attempt = 0; attempt < kMostInCandidate; ++attempt) {
            const GreyRaster crop = Cropped(picture, area);
            const std::size_t before = symbols.size();
            for (const SpottedSymbol& spotted : Spotted(crop)) Take(spotted, area);
            if (symbols.size() == before) break;
        }
        const GreyRaster rest = Cropped(picture, area);
        Own(ReadPostal(rest, pixelsPerMillimetre, isTurned), area);
        Own(ReadMsi(rest, pixelsPerMillimetre), area);
    }

  private:
    static std::vector<SpottedSymbol> Spotted(const GreyRaster& crop) {
        std::vector<SpottedSymbol> spotted = SpotWithZbar(crop);
        for (const bool isLocal : {false, true}) {
            if (!spotted.empty()) break;
            if (auto one = SpotWithZxing(crop, isLocal)) spotted.push_back(std::move(*one));
        }
        return spotted;
    }

    void Take(const SpottedSymbol& spotted, const PixelBox& area) {
        int row = std::clamp(area.top + (spotted.top + spotted.bottom) / 2, 0, picture.height - 1);
        RasterSymbol symbol;
        symbol.symbology = spotted.symbology;
        symbol.reading = spotted.reading;
        symbol.box.left = std::clamp(area.left + spotted.left, 0, picture.width - 1);
        symbol.box.right =
            std::clamp(area.left + spotted.right, symbol.box.left + 1, picture.width);
        const double begin = symbol.box.left / pixelsPerMillimetre;
        const double end = symbol.box.right / pixelsPerMillimetre;
        // The darkest and lightest of a good part of the symbol, also where its ends are unsure.
        const double wider = std::max(0.0, 5 - (end - begin)) / 2;
        const PatternQuery query = QueryOf(spotted.symbology, spotted.reading);
        LineScan scan;
        std::optional<SymbolPattern> pattern;
        // Where one row is spoilt another may do.
        for (const int step : {0, -2, 2, -5, 5, -10, 10}) {
            const int other = row + step;
            if (pattern || other < 0 || other >= picture.height) continue;
            const int left = std::max(area.left, 0);
            const int right = std::min(area.right, picture.width);
            scan = ScanPixels(picture.Row(other) + left, right - left, left / pixelsPerMillimetre,
                              pixelsPerMillimetre, begin - wider, end + wider);
            pattern = PatternIn(scan, query, begin, end);
            if (pattern) row = other;
        }
        symbol.isConfirmed = pattern.has_value();
        if (pattern) {
            const auto count = pattern->nominal.size();
            const std::size_t low =
                pattern->isReversed ? pattern->first + 1 - count : pattern->first;
            const auto pixel = [this](double position) {
                return static_cast<int>(std::lround(position * pixelsPerMillimetre));
            };
            symbol.isReversed = pattern->isReversed;
            symbol.box.left = pixel(scan.elements[low].begin);
            symbol.box.right = pixel(scan.elements[low + count - 1].end);
        }
        FollowRows(picture, row, symbol.box);
        symbol.isDoubtful = IsDoubtful(spotted.symbology, spotted.reading) ||
                            symbol.box.Height() < kLeastHeight * pixelsPerMillimetre;
        if (symbol.symbology == Symbology::kEanUpc) TakeAddOn(symbol);
        PaintOver(symbol.box);
        symbols.push_back(std::move(symbol));
    }

    /** Looks beside an EAN or UPC symbol for an add-on, and paints over it. */
    void TakeAddOn(RasterSymbol& symbol) {
        const int reach = symbol.box.Width() * kAddOnModules / kFewestEanUpcModules;
        PixelBox beside = symbol.box;
        (symbol.isReversed ? beside.left : beside.right) += symbol.isReversed ? -reach : reach;
        PixelBox shown = beside;
        shown.left -= static_cast<int>(pixelsPerMillimetre);
        shown.right += static_cast<int>(pixelsPerMillimetre);
        const Reading reading = ReadWithZbar(Cropped(picture, shown),
                                             {.symbology = Symbology::kEanUpc, .hasAddOn = true});
        if (reading.addOn.empty() || reading.data != symbol.reading.data) return;
        symbol.reading.addOn = reading.addOn;
        PaintOver(beside);
    }

    void Own(std::vector<RasterSymbol> found, const PixelBox& area) {
        for (RasterSymbol& symbol : found) {
            symbol.box.left += area.left;
            symbol.box.right += area.left;
            symbol.box.top += area.top;
            symbol.box.bottom += area.top;
            if (symbol.symbology == Symbology::kMsi) {
                const int row = (symbol.box.top + symbol.box.bottom) / 2;
                if (row < 0 || row >= picture.height || symbol.box.left < 0 ||
                    symbol.box.right > picture.width) {
                    continue;
                }
                FollowRows(picture, row, symbol.box);
            }
            PaintOver(symbol.box);
            symbols.push_back(std::move(symbol));
        }
    }

    void PaintOver(PixelBox box) {
        // Guards of EAN and UPC reach farther down, and leaning bars to the sides.
        const int margin = static_cast<int>(0.3 * pixelsPerMillimetre) + 1;
        box.left -= margin;
        box.right += margin;
        box.top -= 1;
        box.bottom += 1;
        PaintWhite(picture, box);
    }

    GreyRaster& picture;
    double pixelsPerMillimetre;
    bool isTurned;
};

/** Parts of one symbol between which something lies across its bars. */
void JoinParts(std::vector<RasterSymbol>& symbols, double pixelsPerMillimetre) {
    const int apart = static_cast<int>(2.5 * pixelsPerMillimetre);
    const int beside = static_cast<int>(1.0 * pixelsPerMillimetre) + 1;
    for (std::size_t place = 0; place < symbols.size(); ++place) {
        RasterSymbol& whole = symbols[place];
        for (std::size_t other = place + 1; other < symbols.size();) {
            const RasterSymbol& part = symbols[other];
            const int common =
                std::min(part.box.right, whole.box.right) - std::max(part.box.left, whole.box.left);
            // The ends of what is not confirmed are unsure.
            const bool areSure = part.isConfirmed && whole.isConfirmed &&
                                 std::min(part.box.Height(), whole.box.Height()) >=
                                     kLeastHeight * pixelsPerMillimetre;
            const bool doEndsAgree =
                areSure ? std::abs(part.box.left - whole.box.left) <= beside &&
                              std::abs(part.box.right - whole.box.right) <= beside
                        : 2 * common >= std::min(part.box.Width(), whole.box.Width());
            const bool isPart = doEndsAgree && part.symbology == whole.symbology &&
                                part.reading.data == whole.reading.data &&
                                part.box.top - whole.box.bottom <= apart &&
                                whole.box.top - part.box.bottom <= apart;
            if (!isPart) {
                ++other;
                continue;
            }
            whole.box.top = std::min(whole.box.top, part.box.top);
            whole.box.bottom = std::max(whole.box.bottom, part.box.bottom);
            symbols.erase(symbols.begin() + static_cast<std::ptrdiff_t>(other));
            other = place + 1;
        }
    }
}

}  // namespace

PatternQuery QueryOf(Symbology symbology, const Reading& reading) {
    PatternQuery query{symbology, FormOf(reading), reading.data.size()};
    const bool areDigits = symbology == Symbology::kInterleaved2of5 || symbology == Symbology::kMsi;
    if (areDigits) query.digits = reading.data;
    return query;
}

std::optional<SymbolPattern> PatternIn(const LineScan& scan, const PatternQuery& query,
                                       double begin, double end) {
    if (scan.elements.size() < 3) return std::nullopt;
    std::vector<double> widths;
    widths.reserve(scan.elements.size());
    std::size_t from = scan.elements.size();
    std::size_t to = 0;
    for (std::size_t place = 0; place < scan.elements.size(); ++place) {
        const Element& element = scan.elements[place];
        widths.push_back(element.Width());
        if (element.end >= begin && element.begin <= end) {
            from = std::min(from, place);
            to = std::max(to, place);
        }
    }
    return FindPattern(query, widths, from, to);
}

std::vector<RasterSymbol> ReadSymbols(GreyRaster& picture, double pixelsPerMillimetre,
                                      bool isTurned) {
    CandidateReader reader(picture, pixelsPerMillimetre, isTurned);
    for (const PixelBox& candidate : FindCandidates(picture, pixelsPerMillimetre)) {
        reader.Read(candidate);
    }
    JoinParts(reader.symbols, pixelsPerMillimetre);
    return std::move(reader.symbols);
}

}  // namespace linewright
