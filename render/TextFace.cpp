#include "render/TextFace.h"

#include <optional>
#include <utility>

#include "text/Utf8.h"

namespace linewright {

namespace {

/** No line of a page holds more. */
constexpr std::size_t kMostCharacters = 20000;

}  // namespace

TextFace::TextFace(TextFaceName faceName)
    : name(std::move(faceName)),
      installed(FindTextFace(name)),
      file(installed.file, MissingTextFace(name)) {}

const FontFile& TextFace::FileWith(char32_t character) const {
    if (file.GlyphOf(character) != 0) return file;
    for (const auto& [path, other] : others) {
        if (other.GlyphOf(character) != 0) return other;
    }
    const auto path = OtherTextFaceFile(name, character);
    if (!path) return file;
    const FontFile& other = others.try_emplace(*path, *path, MissingTextFace(name)).first->second;
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

std::string TextFace::Fitted(const std::string& text, double size, double width) const {
    constexpr std::u32string_view kCut = U"…";
    const std::u32string characters = CharactersFromUtf8(text).substr(0, kMostCharacters);
    const TextLine line = Set(characters, size);
    if (line.width <= width && characters.size() < kMostCharacters) return text;
    const double room = width - Set(std::u32string(kCut), size).width;
    std::size_t kept = line.glyphs.size() - 1;
    while (kept > 0 && line.glyphs[kept].x > room) --kept;
    return Utf8FromCharacters(characters.substr(0, kept).append(kCut));
}

TextLine TextFace::SetWithin(const std::string& text, double size, double width) const {
    return Set(Fitted(text, size, width), size);
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
