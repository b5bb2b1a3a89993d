#include "render/TextFace.h"

#include <fontconfig/fontconfig.h>

#include <memory>
#include <optional>
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

Pattern FaceOf(bool isBold) {
    return {FcPatternBuild(nullptr, FC_FAMILY, FcTypeString, kFamily, FC_WEIGHT, FcTypeInteger,
                           isBold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR, FC_SLANT, FcTypeInteger,
                           FC_SLANT_ROMAN, nullptr),
            FcPatternDestroy};
}

/** The installed face that is nearest; none without memory or fonts. */
Pattern Match(const Pattern& wanted) {
    if (!wanted || FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern) == FcFalse) {
        return {nullptr, FcPatternDestroy};
    }
    FcDefaultSubstitute(wanted.get());
    FcResult result{};
    return {FcFontMatch(nullptr, wanted.get(), &result), FcPatternDestroy};
}

/** Where the face lies. Another one that stands in for it is none. */
std::string FileOf(bool isBold) {
    const Pattern found = Match(FaceOf(isBold));
    int weight = 0;
    const bool isIt = found && TextOf(found, FC_FAMILY) == kFamily &&
                      FcPatternGetInteger(found.get(), FC_WEIGHT, 0, &weight) == FcResultMatch &&
                      (weight >= FC_WEIGHT_BOLD) == isBold;
    if (!isIt) throw DrawingFailure(Missing());
    return TextOf(found, FC_FILE);
}

/** Where a TrueType face with a character lies, as like ours as there is one. */
std::optional<std::string> FileOfOther(bool isBold, char32_t character) {
    const std::unique_ptr<FcCharSet, decltype(&FcCharSetDestroy)> characters(FcCharSetCreate(),
                                                                             FcCharSetDestroy);
    const Pattern wanted = FaceOf(isBold);
    const bool isAsked =
        characters && wanted && FcCharSetAddChar(characters.get(), character) == FcTrue &&
        FcPatternAddCharSet(wanted.get(), FC_CHARSET, characters.get()) == FcTrue &&
        FcPatternAddString(wanted.get(), FC_FONTFORMAT,
                           reinterpret_cast<const FcChar8*>("TrueType")) == FcTrue;
    if (!isAsked) return std::nullopt;
    const Pattern found = Match(wanted);
    if (!found || TextOf(found, FC_FONTFORMAT) != "TrueType") return std::nullopt;
    return TextOf(found, FC_FILE);
}

}  // namespace

TextFace::TextFace(bool isBoldFace) : isBold(isBoldFace), file(FileOf(isBoldFace), Missing()) {}

const FontFile& TextFace::FileWith(char32_t character) const {
    if (file.GlyphOf(character) != 0) return file;
    for (const auto& [path, other] : others) {
        if (other.GlyphOf(character) != 0) return other;
    }
    const std::optional<std::string> path = FileOfOther(isBold, character);
    if (!path) return file;
    const FontFile& other = others.try_emplace(*path, *path, Missing()).first->second;
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

void TextFace::Show(cairo_t* context, const TextLine& line, double size, double x, double y) const {
    std::vector<cairo_glyph_t> run;
    for (std::size_t i = 0; i < line.glyphs.size(); ++i) {
        const TextLine::Glyph& glyph = line.glyphs[i];
        run.push_back({glyph.index, x + glyph.x, y});
        const bool isLast = i + 1 == line.glyphs.size() || line.glyphs[i + 1].file != glyph.file;
        if (!isLast) continue;
        glyph.file->Select(context, size, size);
        cairo_show_glyphs(context, run.data(), static_cast<int>(run.size()));
        run.clear();
    }
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
