#include <cairo/cairo.h>

#include "render/BarcodeDrawing.h"

namespace linewright {

namespace {

/** Shows glyphs in the font that is set, from a point on. */
void ShowGlyphs(cairo_t* context, const std::vector<PlacedGlyph>& placed, double x, double y) {
    std::vector<cairo_glyph_t> glyphs;
    glyphs.reserve(placed.size());
    for (const PlacedGlyph& glyph : placed) {
        glyphs.push_back({glyph.index, x + glyph.x, y + glyph.y});
    }
    cairo_show_glyphs(context, glyphs.data(), static_cast<int>(glyphs.size()));
}

}  // namespace

void BarcodeFont::Select(cairo_t* context) const {
    file.Select(context, face.modulesPerEm, face.modulesPerEm * stretch);
}

void TextFace::Show(cairo_t* context, const TextLine& line, double size, double x, double y) const {
    for (const TextRun& run : line.runs) {
        run.file->Select(context, size, size);
        ShowGlyphs(context, run.glyphs, x, y);
    }
}

void BarcodeDrawing::ShowText(cairo_t* context) const {
    if (font && !glyphs.empty()) {
        font->Select(context);
        ShowGlyphs(context, glyphs, 0, 0);
    }
    if (textFace) textFace->Show(context, text, textSize, textX, textY);
}

}  // namespace linewright
