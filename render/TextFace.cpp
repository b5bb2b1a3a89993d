#include "render/TextFace.h"

#include "text/Utf8.h"

namespace linewright {

TextFace::TextFace(bool isBold) : file(TextFaceFile(isBold), MissingTextFace()) {}

TextLine TextFace::Set(const std::u32string& characters, double size) const {
    TextLine line;
    for (const char32_t character : characters) {
        const unsigned int glyph = file.GlyphOf(character);
        line.glyphs.push_back({glyph, line.width, 0});
        line.width += file.AdvanceOf(glyph) * size;
    }
    return line;
}

TextLine TextFace::Set(const std::string& text, double size) const {
    return Set(CharactersFromUtf8(text), size);
}

TextLine TextFace::SetWithin(const std::string& text, double size, double width) const {
    std::u32string characters = CharactersFromUtf8(text);
    TextLine line = Set(characters, size);
    if (line.width <= width) return line;
    while (!characters.empty() && line.width > width) {
        characters.pop_back();
        line = Set(characters + U"…", size);
    }
    return line;
}

void TextFace::AddTo(Outline& outline, const TextLine& line, double size, double x,
                     double y) const {
    for (const PlacedGlyph& glyph : line.glyphs) {
        const auto place = [&](Point point) {
            return Point{x + glyph.x + point.x * size, y - point.y * size};
        };
        for (const PathStep& step : file.OutlineOf(glyph.index)) {
            outline.push_back({step.kind, place(step.control), place(step.end)});
        }
    }
}

}  // namespace linewright
