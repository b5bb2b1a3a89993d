#include <cairo/cairo.h>

#include "render/BarcodeDrawing.h"

namespace linewright {

void BarcodeFont::Select(cairo_t* context) const {
    file.Select(context, face.modulesPerEm, face.modulesPerEm * stretch);
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

void BarcodeDrawing::ShowText(cairo_t* context) const {
    if (font && !glyphs.empty()) {
        font->Select(context);
        std::vector<cairo_glyph_t> run;
        run.reserve(glyphs.size());
        for (const PlacedGlyph& glyph : glyphs) run.push_back({glyph.index, glyph.x, glyph.y});
        cairo_show_glyphs(context, run.data(), static_cast<int>(run.size()));
    }
    if (textFace) textFace->Show(context, text, textSize, textX, textY);
}

}  // namespace linewright
