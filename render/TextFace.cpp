#include "render/TextFace.h"

#include <optional>

#include "text/Utf8.h"

namespace linewright {

TextFace::TextFace(bool isBoldFace)
    : isBold(isBoldFace), file(TextFaceFile(isBoldFace), MissingTextFace()) {}

const FontFile& TextFace::FileWith(char32_t character) const {
    if (file.GlyphOf(character) != 0) return file;
    for (const auto& [path, other] : others) {
        if (other.GlyphOf(character) != 0) return other;
    }
    const auto path = OtherTextFaceFile(isBold, character);
    if (!path) return file;
    const FontFile& other = others.try_emplace(*path, *path, MissingTextFace()).first->second;
    return other.GlyphOf(character) == 0 ? file : other;
}

TextLine TextFace::Set(const std::u32string& characters, double size) const {
    TextLine line;
    for (const char32_t character : characters) {
        const FontFile& face = FileWith(character);
        const unsigned int glyph = face.GlyphOf(character);
        line.glyphs.push_back({&face, glyph, line.width});
        line.width += face.AdvanceOf(glyph) * size;
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
    for (const TextLine::Glyph& glyph : line.glyphs) {
        const auto place = [&](Point point) {
            return Point{x + glyph.x + point.x * size, y - point.y * size};
        };
        for (const PathStep& step : glyph.file->OutlineOf(glyph.index)) {
            outline.push_back({step.kind, place(step.control), place(step.end)});
        }
    }
}

}  // namespace linewright
