#include <cairo/cairo-ft.h>

#include "render/BarcodeDrawing.h"
#include "render/CairoPage.h"
#include "render/FontFileFace.h"

namespace linewright {

namespace {

/** Cairo's caches may keep it for longer than we do, and own the file too. */
std::shared_ptr<cairo_font_face_t> CairoFace(FT_Face file) {
    std::shared_ptr<cairo_font_face_t> made(
        cairo_ft_font_face_create_for_ft_face(file, FT_LOAD_NO_HINTING), cairo_font_face_destroy);
    static constexpr cairo_user_data_key_t kFile{};
    CheckCairo(cairo_font_face_set_user_data(
        made.get(), &kFile, file, [](void* done) { CloseFace(static_cast<FT_Face>(done)); }));
    CheckFreeType(FT_Reference_Face(file));
    return made;
}

}  // namespace

void FontFile::Select(cairo_t* context, double width, double height) const {
    if (!face->shown) face->shown = CairoFace(face->file);
    cairo_font_options_t* const options = cairo_font_options_create();
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    cairo_set_font_options(context, options);
    const cairo_status_t status = cairo_font_options_status(options);
    cairo_font_options_destroy(options);
    CheckCairo(status);
    cairo_set_font_face(context, face->shown.get());
    cairo_matrix_t size;
    cairo_matrix_init_scale(&size, width, height);
    cairo_set_font_matrix(context, &size);
}

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

void BarcodeDrawing::PaintArgb(std::uint32_t* pixels, int pictureWidth, int pictureHeight,
                               int rowBytes, double pixelsPerModule, double x, double y) const {
    CairoPage page(cairo_image_surface_create_for_data(reinterpret_cast<unsigned char*>(pixels),
                                                       CAIRO_FORMAT_ARGB32, pictureWidth,
                                                       pictureHeight, rowBytes));
    cairo_translate(page.Context(), x, y);
    FillShapes(page.Context(), InDots(pixelsPerModule));
    page.Finish();
}

}  // namespace linewright
