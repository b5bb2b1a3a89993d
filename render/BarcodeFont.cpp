#include "render/BarcodeFont.h"

#include <cairo/cairo-ft.h>

#include <array>
#include <cmath>
#include <utility>
#include FT_MULTIPLE_MASTERS_H
#include FT_OUTLINE_H

namespace linewright {

namespace {

/** Lives as long as the program: Cairo keeps faces in caches of its own. */
FT_Library Library() {
    static FT_Library library = [] {
        FT_Library made = nullptr;
        FT_Init_FreeType(&made);
        return made;
    }();
    return library;
}

bool IsStatic(const FontShape& axes) {
    return axes.heightPercent == 100 && axes.reductionPercent == 0;
}

std::filesystem::path FileOf(const std::filesystem::path& folder, const BarcodeFace& face,
                             const FontShape& shape) {
    const std::string stem(face.fileStem);
    if (IsStatic(shape)) return folder / (stem + ".ttf");
    return folder / "variable" / (stem + "-Variable.ttf");
}

/** Sets the axes in the order in which the fonts have them: BHGT, BWRD. */
bool SetShape(FT_Face file, const FontShape& shape) {
    if (IsStatic(shape)) return true;
    const auto fixed = [](double value) { return std::lround(value * 65536); };
    std::array<FT_Fixed, 2> axes{fixed(shape.heightPercent), fixed(shape.reductionPercent)};
    return FT_Set_Var_Design_Coordinates(file, axes.size(), axes.data()) == 0;
}

/** A character at which every byte's glyph is found, see docs/fonts.md. */
FT_ULong CharacterOf(unsigned char byte) {
    return byte >= 32 && byte <= 126 ? byte : 0xF000U + byte;
}

}  // namespace

std::unique_ptr<const BarcodeFont> BarcodeFont::Load(const std::filesystem::path& folder,
                                                     const BarcodeFace& face,
                                                     const FontShape& shape, std::string& problem) {
    FontShape axes = shape;
    double stretch = 1;
    if (!face.printsText) {
        stretch = std::exchange(axes.heightPercent, 100) / 100;
    }
    const std::string path = FileOf(folder, face, axes).string();
    FT_Face file = nullptr;
    if (FT_New_Face(Library(), path.c_str(), 0, &file) != 0) {
        problem = path + ": there is no such font, or it cannot be read";
        return nullptr;
    }
    if (!SetShape(file, axes)) {
        FT_Done_Face(file);
        problem = path + ": the font has not the axes that are asked for";
        return nullptr;
    }
    return std::unique_ptr<const BarcodeFont>(new BarcodeFont(file, face, axes, stretch));
}

BarcodeFont::BarcodeFont(FT_Face fontFile, const BarcodeFace& barcodeFace, const FontShape& axes,
                         double verticalStretch)
    : file(fontFile),
      cairoFace(cairo_ft_font_face_create_for_ft_face(fontFile, FT_LOAD_NO_HINTING)),
      face(barcodeFace),
      shape(axes),
      stretch(verticalStretch) {
    static constexpr cairo_user_data_key_t kFile{};
    cairo_font_face_set_user_data(cairoFace, &kFile, file,
                                  [](void* done) { FT_Done_Face(static_cast<FT_Face>(done)); });
}

BarcodeFont::~BarcodeFont() {
    cairo_font_face_destroy(cairoFace);
}

GlyphBox BarcodeFont::GlyphOf(unsigned char byte, bool isLarge) const {
    FT_UInt index = FT_Get_Char_Index(file, CharacterOf(byte));
    if (isLarge) {
        std::array<char, 64> name{};
        FT_Get_Glyph_Name(file, index, name.data(), name.size());
        const FT_UInt large = FT_Get_Name_Index(file, (std::string(name.data()) + ".full").data());
        if (large != 0) index = large;
    }
    FT_Load_Glyph(file, index, FT_LOAD_NO_SCALE);
    FT_BBox box{};
    FT_Outline_Get_CBox(&file->glyph->outline, &box);
    const double unitsPerModule = static_cast<double>(file->units_per_EM) / face.modulesPerEm;
    const auto modules = [&](FT_Pos units) { return static_cast<double>(units) / unitsPerModule; };
    return {
        .index = index,
        .advance = modules(file->glyph->metrics.horiAdvance),
        .left = modules(box.xMin),
        .bottom = modules(box.yMin) * stretch,
        .right = modules(box.xMax),
        .top = modules(box.yMax) * stretch,
    };
}

void BarcodeFont::Select(cairo_t* context) const {
    cairo_font_options_t* const options = cairo_font_options_create();
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    if (IsVariable()) {
        const std::string axes = "BHGT=" + std::to_string(shape.heightPercent) +
                                 ",BWRD=" + std::to_string(shape.reductionPercent);
        cairo_font_options_set_variations(options, axes.c_str());
    }
    cairo_set_font_options(context, options);
    cairo_font_options_destroy(options);
    cairo_set_font_face(context, cairoFace);
    cairo_matrix_t size;
    cairo_matrix_init_scale(&size, face.modulesPerEm, face.modulesPerEm * stretch);
    cairo_set_font_matrix(context, &size);
}

}  // namespace linewright
