#include "render/FontFile.h"

#include <cairo/cairo-ft.h>
#include <freetype/ftmm.h>
#include <freetype/ftoutln.h>

#include <array>
#include <cmath>
#include <string>

#include "render/CairoPage.h"
#include "render/FreeType.h"

namespace linewright {

namespace {

/** An outline being taken down, in ems. */
struct Pen {
    Outline outline;
    double em;

    Point At(const FT_Vector* place) const {
        return {static_cast<double>(place->x) / em, static_cast<double>(place->y) / em};
    }
};

int Add(void* pen, PathStep::Kind kind, const FT_Vector* control, const FT_Vector* end) {
    Pen& target = *static_cast<Pen*>(pen);
    try {
        target.outline.push_back({kind, target.At(control), target.At(end)});
    } catch (const std::bad_alloc&) {
        return FT_Err_Out_Of_Memory;
    }
    return 0;
}

}  // namespace

void CheckFreeType(FT_Error error) {
    if (error == 0) return;
    throw DrawingFailure(DrawingProblem::Reason::kLibrary,
                         {"FreeType, error " + std::to_string(error)});
}

FT_Library FreeTypeLibrary() {
    // Cairo keeps faces in caches of its own.
    static FT_Library library = [] {
        FT_Library made = nullptr;
        CheckFreeType(FT_Init_FreeType(&made));
        return made;
    }();
    return library;
}

struct FontFile::Face {
    Face() = default;
    Face(const Face&) = delete;
    Face& operator=(const Face&) = delete;
    ~Face() {
        if (cairoFace != nullptr) {
            cairo_font_face_destroy(cairoFace);
        } else if (file != nullptr) {
            FT_Done_Face(file);
        }
    }

    void Load(unsigned int glyph) const {
        CheckFreeType(FT_Load_Glyph(file, glyph, FT_LOAD_NO_SCALE));
    }
    cairo_font_face_t* CairoFace();

    FT_Face file = nullptr;
    /** Made when it is first shown, and then the owner of the file: Cairo leaks the axes of a
     *  variable font, which is never shown by it. */
    cairo_font_face_t* cairoFace = nullptr;
};

FontFile::FontFile(const std::filesystem::path& path, const DrawingProblem& missing)
    : face(std::make_unique<Face>()) {
    if (FT_New_Face(FreeTypeLibrary(), path.c_str(), 0, &face->file) != 0) {
        throw DrawingFailure(missing);
    }
}

FontFile::~FontFile() = default;

cairo_font_face_t* FontFile::Face::CairoFace() {
    if (cairoFace != nullptr) return cairoFace;
    cairo_font_face_t* const made = cairo_ft_font_face_create_for_ft_face(file, FT_LOAD_NO_HINTING);
    // Cairo's caches may keep the face for longer than we do; the file goes with it.
    static constexpr cairo_user_data_key_t kFile{};
    const cairo_status_t status = cairo_font_face_set_user_data(
        made, &kFile, file, [](void* done) { FT_Done_Face(static_cast<FT_Face>(done)); });
    if (status != CAIRO_STATUS_SUCCESS) {
        cairo_font_face_destroy(made);
        CheckCairo(status);
    }
    cairoFace = made;
    return made;
}

bool FontFile::SetBarHeight(double percent) {
    // The axes in the order in which the fonts have them: BHGT, BWRD.
    std::array<FT_Fixed, 2> axes{std::lround(percent * 65536), 0};
    return FT_Set_Var_Design_Coordinates(face->file, axes.size(), axes.data()) == 0;
}

unsigned int FontFile::GlyphOf(char32_t character) const {
    return FT_Get_Char_Index(face->file, character);
}

unsigned int FontFile::LargerOf(unsigned int glyph) const {
    std::array<char, 64> name{};
    CheckFreeType(FT_Get_Glyph_Name(face->file, glyph, name.data(), name.size()));
    const unsigned int larger =
        FT_Get_Name_Index(face->file, (std::string(name.data()) + ".full").data());
    return larger == 0 ? glyph : larger;
}

double FontFile::AdvanceOf(unsigned int glyph) const {
    face->Load(glyph);
    return static_cast<double>(face->file->glyph->metrics.horiAdvance) / face->file->units_per_EM;
}

Outline FontFile::OutlineOf(unsigned int glyph) const {
    face->Load(glyph);
    using Kind = PathStep::Kind;
    FT_Outline_Funcs functions{};
    functions.move_to = [](const FT_Vector* to, void* pen) {
        return Add(pen, Kind::kMove, to, to);
    };
    functions.line_to = [](const FT_Vector* to, void* pen) {
        return Add(pen, Kind::kLine, to, to);
    };
    functions.conic_to = [](const FT_Vector* control, const FT_Vector* to, void* pen) {
        return Add(pen, Kind::kCurve, control, to);
    };
    // TrueType knows no curves of the third degree.
    functions.cubic_to = [](const FT_Vector*, const FT_Vector*, const FT_Vector*, void*) -> int {
        return FT_Err_Invalid_Outline;
    };
    Pen pen{{}, static_cast<double>(face->file->units_per_EM)};
    CheckFreeType(FT_Outline_Decompose(&face->file->glyph->outline, &functions, &pen));
    return pen.outline;
}

void FontFile::Select(cairo_t* context, double width, double height) const {
    cairo_font_options_t* const options = cairo_font_options_create();
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    cairo_set_font_options(context, options);
    const cairo_status_t status = cairo_font_options_status(options);
    cairo_font_options_destroy(options);
    CheckCairo(status);
    cairo_set_font_face(context, face->CairoFace());
    cairo_matrix_t size;
    cairo_matrix_init_scale(&size, width, height);
    cairo_set_font_matrix(context, &size);
}

}  // namespace linewright
