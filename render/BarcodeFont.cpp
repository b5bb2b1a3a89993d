#include "render/BarcodeFont.h"

#include <cairo/cairo-ft.h>
#include <freetype/ftmm.h>
#include <freetype/ftoutln.h>

#include <array>
#include <cmath>
#include <utility>

#include "text/FontCharacters.h"

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

double Number(FT_Pos position) {
    return static_cast<double>(position);
}

}  // namespace

std::unique_ptr<const BarcodeFont> BarcodeFont::Load(const std::filesystem::path& folder,
                                                     const BarcodeFace& face,
                                                     const FontShape& shape,
                                                     DrawingProblem& problem) {
    FontShape axes = shape;
    double stretch = 1;
    if (!face.printsText) {
        stretch = std::exchange(axes.heightPercent, 100) / 100;
    }
    const std::string path = FileOf(folder, face, axes).string();
    FT_Face file = nullptr;
    if (FT_New_Face(Library(), path.c_str(), 0, &file) != 0) {
        problem = {DrawingProblem::Reason::kNoFont, {path}};
        return nullptr;
    }
    if (!SetShape(file, axes)) {
        FT_Done_Face(file);
        problem = {DrawingProblem::Reason::kNoAxes, {path}};
        return nullptr;
    }
    return std::unique_ptr<const BarcodeFont>(new BarcodeFont(file, face, axes, stretch));
}

BarcodeFont::BarcodeFont(FT_Face fontFile, const BarcodeFace& barcodeFace, const FontShape& axes,
                         double verticalStretch)
    : file(fontFile), face(barcodeFace), shape(axes), stretch(verticalStretch) {
    if (IsVariable()) return;
    // Cairo's caches may keep the face for longer than we do; the file goes with it.
    static constexpr cairo_user_data_key_t kFile{};
    cairoFace = cairo_ft_font_face_create_for_ft_face(file, FT_LOAD_NO_HINTING);
    cairo_font_face_set_user_data(cairoFace, &kFile, file,
                                  [](void* done) { FT_Done_Face(static_cast<FT_Face>(done)); });
}

BarcodeFont::~BarcodeFont() {
    if (cairoFace != nullptr) {
        cairo_font_face_destroy(cairoFace);
    } else {
        FT_Done_Face(file);
    }
}

GlyphBox BarcodeFont::GlyphOf(unsigned char byte, bool isLarge) const {
    FT_UInt index = FT_Get_Char_Index(file, FontCharacter(byte));
    if (isLarge) {
        std::array<char, 64> name{};
        FT_Get_Glyph_Name(file, index, name.data(), name.size());
        const FT_UInt large = FT_Get_Name_Index(file, (std::string(name.data()) + ".full").data());
        if (large != 0) index = large;
    }
    FT_Load_Glyph(file, index, FT_LOAD_NO_SCALE);
    FT_BBox box{};
    FT_Outline_Get_CBox(&file->glyph->outline, &box);
    return {
        .index = index,
        .advance = ModulesOf(file->glyph->metrics.horiAdvance),
        .left = ModulesOf(box.xMin),
        .bottom = ModulesOf(box.yMin) * stretch,
        .right = ModulesOf(box.xMax),
        .top = ModulesOf(box.yMax) * stretch,
    };
}

double BarcodeFont::ModulesOf(FT_Pos units) const {
    return static_cast<double>(units) * face.modulesPerEm / file->units_per_EM;
}

void BarcodeFont::Select(cairo_t* context) const {
    cairo_font_options_t* const options = cairo_font_options_create();
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    cairo_set_font_options(context, options);
    cairo_font_options_destroy(options);
    cairo_set_font_face(context, cairoFace);
    cairo_matrix_t size;
    cairo_matrix_init_scale(&size, face.modulesPerEm, face.modulesPerEm * stretch);
    cairo_set_font_matrix(context, &size);
}

void BarcodeFont::AddPath(cairo_t* context, const cairo_glyph_t& glyph) const {
    FT_Load_Glyph(file, static_cast<FT_UInt>(glyph.index), FT_LOAD_NO_SCALE);
    FT_Outline_Funcs pen{};
    pen.move_to = [](const FT_Vector* to, void* path) {
        cairo_close_path(static_cast<cairo_t*>(path));
        cairo_move_to(static_cast<cairo_t*>(path), Number(to->x), Number(to->y));
        return 0;
    };
    pen.line_to = [](const FT_Vector* to, void* path) {
        cairo_line_to(static_cast<cairo_t*>(path), Number(to->x), Number(to->y));
        return 0;
    };
    // A curve of the second degree as one of the third.
    pen.conic_to = [](const FT_Vector* control, const FT_Vector* to, void* path) {
        double x = 0;
        double y = 0;
        cairo_get_current_point(static_cast<cairo_t*>(path), &x, &y);
        cairo_curve_to(static_cast<cairo_t*>(path), (x + 2 * Number(control->x)) / 3,
                       (y + 2 * Number(control->y)) / 3,
                       (Number(to->x) + 2 * Number(control->x)) / 3,
                       (Number(to->y) + 2 * Number(control->y)) / 3, Number(to->x), Number(to->y));
        return 0;
    };
    cairo_save(context);
    cairo_translate(context, glyph.x, glyph.y);
    cairo_scale(context, ModulesOf(1), -ModulesOf(1) * stretch);
    FT_Outline_Decompose(&file->glyph->outline, &pen, context);
    cairo_close_path(context);
    cairo_restore(context);
}

}  // namespace linewright
