#include "preflight/PageSymbols.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "preflight/BarGroups.h"
#include "preflight/SymbolReader.h"

namespace linewright {

namespace {

/** ISO/IEC 15416 has ten lines, in the middle eight tenths of the bars. */
constexpr int kLines = 10;
/** What the places of a symbol in shapes and in pixels may differ by, in mm. */
constexpr double kAgreement = 0.5;
/** Pixels a module that are needed to tell, and those that are asked for. */
constexpr double kLeastPixels = 8;
constexpr double kWantedPixels = 12;
constexpr double kMostPixelsPerMillimetre = 2400 / 25.4;
/** Of bars' sides; fewer are seen where something lies upon them. */
constexpr double kLeastSeen = 0.9;
/** A group's picture is looked at as if its narrow elements had a usual width. */
constexpr double kPicturePixels = kGroupPixels / 0.25;
/** Of lines that have to be whole to measure by them. */
constexpr std::size_t kFewestLines = 3;

/** Bars that confirm a symbol which noise can read like. */
constexpr double kSureHeight = 3;
constexpr double kSureQuiet = 5;

class PageReader {
  public:
    PageReader(const Document& ownDocument, Page& ownPage) : document(ownDocument), page(ownPage) {}

    std::vector<FoundSymbol> symbols;

    /** `rows` is the page's picture to look for symbols in, `red` the one to measure in. */
    void Read(GreyRaster& rows, const GreyRaster& red, bool isTurned) {
        for (RasterSymbol& raster : ReadSymbols(rows, page.pixelsPerMillimetre, isTurned)) {
            Take(std::move(raster), red, isTurned);
        }
        if (page.shapes) JudgeGroups(isTurned);
    }

  private:
    /** Lines across a symbol, its area in the direction of its rows. */
    std::vector<SymbolLine> ShapeLines(const PatternQuery& query, const Area& area,
                                       bool isTurned) const {
        if (!page.shapes) return {};
        return LinesOf(area, isTurned, query, [&](double y, double begin, double end) {
            return ScanStretches(page.shapes->Along(y, begin, end, isTurned), area.left,
                                 area.right);
        });
    }

    /** The same in a picture of `place`. */
    std::vector<SymbolLine> PixelLines(const PatternQuery& query, const Area& area, bool isTurned,
                                       const GreyRaster& red, const Area& place,
                                       double pixelsPerMillimetre) const {
        return LinesOf(area, isTurned, query, [&](double y, double begin, double end) {
            const auto pixel = [&](double position, double origin, int count) {
                return std::clamp(
                    static_cast<int>(std::lround((position - origin) * pixelsPerMillimetre)), 0,
                    count);
            };
            const int row = std::min(pixel(y, place.top, red.height), red.height - 1);
            const int first = pixel(begin, place.left, red.width);
            const int last = pixel(end, place.left, red.width);
            return ScanPixels(red.Row(row) + first, last - first,
                              place.left + first / pixelsPerMillimetre, pixelsPerMillimetre,
                              area.left, area.right);
        });
    }

    template <class ScanLine>
    std::vector<SymbolLine> LinesOf(const Area& area, bool isTurned, const PatternQuery& query,
                                    ScanLine scanLine) const {
        const double beyond = std::max(4.0, area.Width() / 4);
        const double begin = std::max(0.0, area.left - beyond);
        const double end = std::min(isTurned ? page.height : page.width, area.right + beyond);
        std::vector<SymbolLine> lines;
        lines.reserve(kLines);
        for (int line = 0; line < kLines; ++line) {
            const double y = area.top + area.Height() * (0.1 + 0.8 * (line + 0.5) / kLines);
            SymbolLine found{scanLine(y, begin, end), {}};
            if (found.scan.isUnknown) continue;
            auto pattern = PatternIn(found.scan, query, area.left, area.right);
            if (!pattern) continue;
            found.pattern = std::move(*pattern);
            lines.push_back(std::move(found));
        }
        return lines;
    }

    void Measure(FoundSymbol& symbol, const Area& area, const GreyRaster& red, bool isTurned) {
        PatternQuery query = QueryOf(symbol.symbology, symbol.reading);
        if (symbol.symbology == Symbology::kPostnet) query.length = 5 * query.length + 2;
        std::vector<SymbolLine> lines = ShapeLines(query, area, isTurned);
        if (lines.size() >= kFewestLines) {
            const Measures measures = MeasureLines(lines, LineSource::kShapes);
            const bool doAgree = std::fabs(measures.begin - area.left) < kAgreement &&
                                 std::fabs(measures.end - area.right) < kAgreement;
            if (doAgree) {
                SetMeasures(symbol, measures);
                return;
            }
        }
        const Area whole{0, 0, isTurned ? page.height : page.width,
                         isTurned ? page.width : page.height};
        double resolution = page.pixelsPerMillimetre;
        lines = PixelLines(query, area, isTurned, red, whole, resolution);
        if (lines.empty()) return;
        Measures measures = MeasureLines(lines, LineSource::kFewPixels);
        if (measures.xDimension * resolution >= kLeastPixels) {
            measures = MeasureLines(lines, LineSource::kManyPixels);
        } else if (auto finer = FinerMeasures(query, area, isTurned, measures.xDimension)) {
            measures = *finer;
        }
        SetMeasures(symbol, measures);
    }

    /** Measures in a picture of the symbol's surroundings with enough pixels, where the document
     *  can be drawn with more of them. */
    std::optional<Measures> FinerMeasures(const PatternQuery& query, const Area& area,
                                          bool isTurned, double xDimension) const {
        const double beyond = std::max(4.0, area.Width() / 4);
        const Area place{std::max(0.0, area.left - beyond), area.top, area.right + beyond,
                         area.bottom};
        const double resolution = std::min(kWantedPixels / xDimension, kMostPixelsPerMillimetre);
        auto red = document.ReadRegion(page, isTurned ? place.Turned() : place, resolution);
        if (!red) return std::nullopt;
        if (isTurned) red = Turned(*red);
        const std::vector<SymbolLine> lines =
            PixelLines(query, area, isTurned, *red, place, resolution);
        if (lines.empty()) return std::nullopt;
        return MeasureLines(lines, xDimension * resolution >= kLeastPixels
                                       ? LineSource::kManyPixels
                                       : LineSource::kFewPixels);
    }

    static void SetMeasures(FoundSymbol& symbol, Measures measures) {
        // Their bars are not graded but by contrast.
        const bool isPostal = symbol.symbology == Symbology::kPostnet ||
                              symbol.symbology == Symbology::kIntelligentMail;
        if (isPostal) measures.parts->decodability.reset();
        symbol.measures = measures;
    }

    /** Looks at bars among the shapes: whether something lies upon them, and what they say where
     *  nothing was read in the picture. */
    void JudgeGroups(bool isTurned) {
        for (const BarGroup& group : FindBarGroups(*page.shapes, isTurned)) {
            const double seen = SeenPart(*page.shapes, group, isTurned);
            FoundSymbol* symbol = SymbolAt(isTurned ? group.area.Turned() : group.area);
            if (symbol == nullptr) symbol = &symbols.emplace_back(Read(group, isTurned));
            if (seen < kLeastSeen) {
                symbol->faults.push_back(
                    {Fault::Kind::kCovered, {fmt::format("{:.0f}", 100 * seen)}});
            } else if (!symbol->reading.isFound && symbol->faults.empty()) {
                symbol->faults.push_back({Fault::Kind::kUnread, {}});
            }
        }
    }

    /** The bars of a symbol and of its add-on, which is not half as wide. */
    static Area WithAddOn(const FoundSymbol& symbol) {
        Area area = symbol.area;
        if (symbol.reading.addOn.empty()) return area;
        const bool isUpright = symbol.degrees % 180 != 0;
        const double reach = 0.7 * (isUpright ? area.Height() : area.Width());
        switch (symbol.degrees) {
            case 0: area.right += reach; break;
            case 90: area.bottom += reach; break;
            case 180: area.left -= reach; break;
            default: area.top -= reach; break;
        }
        return area;
    }

    /** The symbol that takes up most of an area, or lies in it. */
    FoundSymbol* SymbolAt(const Area& area) {
        const auto sizeOf = [](const Area& each) { return each.Width() * each.Height(); };
        for (FoundSymbol& symbol : symbols) {
            const Area common = Common(WithAddOn(symbol), area);
            if (!common.IsEmpty() &&
                sizeOf(common) >= 0.4 * std::min(sizeOf(area), sizeOf(symbol.area))) {
                return &symbol;
            }
        }
        return nullptr;
    }

    /** Reads bars that the picture of the page has too few pixels for. */
    FoundSymbol Read(const BarGroup& group, bool isTurned) {
        FoundSymbol symbol;
        symbol.page = page.number;
        symbol.area = isTurned ? group.area.Turned() : group.area;
        symbol.height = group.area.Height();
        symbol.degrees = isTurned ? 90 : 0;
        symbol.font = FontAt(symbol.area);
        std::vector<RasterSymbol> read;
        // What stands in a quiet zone can keep scanners from reading.
        for (const bool isAlone : {false, true}) {
            auto picture = PictureOf(*page.shapes, group, isTurned, isAlone);
            if (picture && read.empty()) read = ReadSymbols(*picture, kPicturePixels, isTurned);
        }
        if (read.empty()) return symbol;
        symbol.symbology = read.front().symbology;
        symbol.reading = std::move(read.front().reading);
        const std::vector<SymbolLine> lines =
            ShapeLines(QueryOf(symbol.symbology, symbol.reading), group.area, isTurned);
        if (!lines.empty()) {
            symbol.measures = MeasureLines(lines, LineSource::kShapes);
            if (lines.front().pattern.isReversed) symbol.degrees += 180;
        }
        return symbol;
    }

    void Take(RasterSymbol raster, const GreyRaster& red, bool isTurned) {
        const double millimetre = 1 / page.pixelsPerMillimetre;
        const Area area{raster.box.left * millimetre, raster.box.top * millimetre,
                        raster.box.right * millimetre, raster.box.bottom * millimetre};
        FoundSymbol symbol;
        symbol.page = page.number;
        symbol.symbology = raster.symbology;
        symbol.reading = std::move(raster.reading);
        symbol.height = area.Height();
        symbol.degrees = (isTurned ? 90 : 0) + (raster.isReversed ? 180 : 0);
        symbol.area = isTurned ? area.Turned() : area;
        Measure(symbol, area, red, isTurned);
        if (symbol.measures && symbol.measures->isExact) {
            (isTurned ? symbol.area.top : symbol.area.left) = symbol.measures->begin;
            (isTurned ? symbol.area.bottom : symbol.area.right) = symbol.measures->end;
        }
        const bool areBarsSure =
            raster.isConfirmed && symbol.measures && symbol.height >= kSureHeight &&
            symbol.measures->quietLeft >= kSureQuiet && symbol.measures->quietRight >= kSureQuiet;
        symbol.isDoubtful = raster.isDoubtful && !areBarsSure;
        symbol.font = FontAt(symbol.area);
        symbols.push_back(std::move(symbol));
    }

    /** The font of the text that covers most of the bars. */
    std::string FontAt(const Area& area) const {
        std::string font;
        double most = 0.2 * area.Width() * area.Height();
        for (const PlacedText& text : page.texts) {
            const Area common = Common(text.area, area);
            if (common.IsEmpty() || common.Width() * common.Height() <= most) continue;
            most = common.Width() * common.Height();
            font = text.font;
        }
        return font;
    }

    const Document& document;
    Page& page;
};

}  // namespace

std::vector<FoundSymbol> SymbolsOf(const Document& document, Page& page) {
    PageReader reader(document, page);
    reader.Read(page.grey, page.red, false);
    GreyRaster turned = Turned(page.grey);
    reader.Read(turned, Turned(page.red), true);
    std::sort(reader.symbols.begin(), reader.symbols.end(),
              [](const FoundSymbol& a, const FoundSymbol& b) {
                  return a.area.top != b.area.top ? a.area.top < b.area.top
                                                  : a.area.left < b.area.left;
              });
    return std::move(reader.symbols);
}

}  // namespace linewright
