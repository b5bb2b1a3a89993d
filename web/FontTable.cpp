#include <algorithm>
#include <cmath>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "render/FontFile.h"
#include "render/TextFace.h"

// The fonts without files: their outlines as web/tables/font_table.py wrote them down.

namespace linewright {

namespace {

struct TableFont {
    std::string_view stem;
    int unitsPerEm;
    bool hasHeights;
    std::span<const std::uint8_t> data;
    /** Where each glyph's row begins. */
    std::span<const std::uint16_t> starts;
    /** Pairs of a character and its glyph. */
    std::span<const std::uint16_t> characters;
    /** Pairs of a glyph and its larger form. */
    std::span<const std::uint16_t> larger;
};

#include "web/tables/FontTable.inc"

/** The second of the pair that begins with a number, or `otherwise`. */
unsigned int SecondOf(std::span<const std::uint16_t> pairs, char32_t first,
                      unsigned int otherwise) {
    for (std::size_t place = 0; place < pairs.size(); place += 2) {
        if (pairs[place] == first) return pairs[place + 1];
    }
    return otherwise;
}

/** Reads a glyph's row. */
class GlyphRow {
  public:
    GlyphRow(const TableFont& font, unsigned int glyph)
        : next(font.data.begin() + font.starts[glyph]) {}

    int Number() {
        int number = 0;
        int shift = 0;
        while (*next > 127) {
            number |= (*next++ & 127) << shift;
            shift += 7;
        }
        return number | *next++ << shift;
    }
    int Signed() { return Unfolded(Number()); }
    static int Unfolded(int number) { return number % 2 == 0 ? number / 2 : -(number + 1) / 2; }

  private:
    std::span<const std::uint8_t>::iterator next;
};

struct FilePoint {
    int x;
    int y;
    bool isOnCurve;
};

FilePoint Between(const FilePoint& a, const FilePoint& b) {
    return {(a.x + b.x) / 2, (a.y + b.y) / 2, true};
}

/** TrueType leaves out points on the curve that are in the middle of two beside it. */
void AddContour(Outline& outline, std::vector<FilePoint> points, double em) {
    const auto at = [em](const FilePoint& point) { return Point{point.x / em, point.y / em}; };
    if (!points.front().isOnCurve) {
        const bool endsOnCurve = points.back().isOnCurve;
        points.insert(points.begin(),
                      endsOnCurve ? points.back() : Between(points.front(), points.back()));
        if (endsOnCurve) points.pop_back();
    }
    const FilePoint start = points.front();
    points.push_back(start);
    outline.push_back({PathStep::Kind::kMove, at(start), at(start)});
    const FilePoint* control = nullptr;
    for (std::size_t place = 1; place < points.size(); ++place) {
        const FilePoint& point = points[place];
        if (control == nullptr && point.isOnCurve) {
            outline.push_back({PathStep::Kind::kLine, at(point), at(point)});
        } else if (control != nullptr) {
            const FilePoint end = point.isOnCurve ? point : Between(*control, point);
            outline.push_back({PathStep::Kind::kCurve, at(*control), at(end)});
        }
        control = point.isOnCurve ? nullptr : &point;
    }
}

}  // namespace

struct FontFile::Face {
    const TableFont* font = nullptr;
    /** What is added to the usual height, in parts of it. */
    double growth = 0;
};

FontFile::FontFile(const std::filesystem::path& path, const DrawingProblem& missing)
    : face(std::make_unique<Face>()) {
    const std::string stem = path.stem().string();
    for (const TableFont& font : kFonts) {
        if (stem.starts_with(font.stem)) face->font = &font;
    }
    if (face->font == nullptr) throw DrawingFailure(missing);
}

FontFile::~FontFile() = default;

bool FontFile::SetBarHeight(double percent) {
    face->growth = (percent - 100) / 100;
    return face->font->hasHeights;
}

unsigned int FontFile::GlyphOf(char32_t character) const {
    return SecondOf(face->font->characters, character, 0);
}

unsigned int FontFile::LargerOf(unsigned int glyph) const {
    return SecondOf(face->font->larger, glyph, glyph);
}

double FontFile::AdvanceOf(unsigned int glyph) const {
    return static_cast<double>(GlyphRow(*face->font, glyph).Number()) / face->font->unitsPerEm;
}

Outline FontFile::OutlineOf(unsigned int glyph) const {
    GlyphRow row(*face->font, glyph);
    row.Number();  // the advance
    Outline outline;
    int x = 0;
    int y = 0;
    for (int contours = row.Number(); contours > 0; --contours) {
        std::vector<FilePoint> points;
        for (int count = row.Number(); count > 0; --count) {
            const int xAndKind = row.Number();
            x += GlyphRow::Unfolded(xAndKind / 2);
            y += row.Signed();
            const int grown = face->font->hasHeights
                                  ? static_cast<int>(std::lround(row.Signed() * face->growth))
                                  : 0;
            points.push_back({x, y + grown, xAndKind % 2 == 1});
        }
        AddContour(outline, std::move(points), face->font->unitsPerEm);
    }
    return outline;
}

std::filesystem::path TextFaceFile(bool /*isBold*/) {
    return "DejaVuSansMono";
}

std::optional<std::filesystem::path> OtherTextFaceFile(bool /*isBold*/, char32_t /*character*/) {
    return std::nullopt;
}

DrawingProblem MissingTextFace() {
    return {DrawingProblem::Reason::kNoTextFace, {"DejaVu Sans Mono"}};
}

}  // namespace linewright
