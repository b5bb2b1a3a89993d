#include "render/TextFace.h"

#include <fontconfig/fontconfig.h>

#include <memory>
#include <string_view>

#include "text/Utf8.h"

namespace linewright {

namespace {

constexpr const char* kFamily = "DejaVu Sans Mono";

DrawingProblem Missing() {
    return {DrawingProblem::Reason::kNoTextFace, {kFamily}};
}

using Pattern = std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)>;

/** What the pattern says under a name; fails where it says nothing. */
std::string TextOf(const Pattern& pattern, const char* name) {
    FcChar8* text = nullptr;
    if (FcPatternGetString(pattern.get(), name, 0, &text) != FcResultMatch) {
        throw DrawingFailure(Missing());
    }
    return reinterpret_cast<const char*>(text);
}

/** Where the face lies. Another one that stands in for it is none. */
std::string FileOf(bool isBold) {
    const Pattern wanted(FcPatternBuild(nullptr, FC_FAMILY, FcTypeString, kFamily, FC_WEIGHT,
                                        FcTypeInteger, isBold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR,
                                        FC_SLANT, FcTypeInteger, FC_SLANT_ROMAN, nullptr),
                         FcPatternDestroy);
    if (!wanted || FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern) == FcFalse) {
        throw DrawingFailure(Missing());
    }
    FcDefaultSubstitute(wanted.get());
    FcResult result{};
    const Pattern found(FcFontMatch(nullptr, wanted.get(), &result), FcPatternDestroy);
    int weight = 0;
    const bool isIt = found && TextOf(found, FC_FAMILY) == kFamily &&
                      FcPatternGetInteger(found.get(), FC_WEIGHT, 0, &weight) == FcResultMatch &&
                      (weight >= FC_WEIGHT_BOLD) == isBold;
    if (!isIt) throw DrawingFailure(Missing());
    return TextOf(found, FC_FILE);
}

}  // namespace

TextFace::TextFace(bool isBold) : file(FileOf(isBold), Missing()) {}

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

void TextFace::Show(cairo_t* context, const TextLine& line, double size, double x, double y) const {
    file.Select(context, size, size);
    std::vector<cairo_glyph_t> glyphs = line.glyphs;
    for (cairo_glyph_t& glyph : glyphs) {
        glyph.x += x;
        glyph.y += y;
    }
    cairo_show_glyphs(context, glyphs.data(), static_cast<int>(glyphs.size()));
}

void TextFace::AddTo(Outline& outline, const TextLine& line, double size, double x,
                     double y) const {
    for (const cairo_glyph_t& glyph : line.glyphs) {
        const auto place = [&](Point point) {
            return Point{x + glyph.x + point.x * size, y - point.y * size};
        };
        for (const PathStep& step : file.OutlineOf(static_cast<unsigned int>(glyph.index))) {
            outline.push_back({step.kind, place(step.control), place(step.end)});
        }
    }
}

}  // namespace linewright
