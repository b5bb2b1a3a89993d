#pragma once

#include <cairo/cairo.h>
#include <freetype/freetype.h>

#include <filesystem>

#include "render/DrawingFailure.h"
#include "render/Shapes.h"

namespace linewright {

/** Throws a DrawingFailure unless there is no error. */
void CheckFreeType(FT_Error error);

/** The one that lives as long as the program. */
FT_Library FreeTypeLibrary();

/** A font from its file. Lengths are in ems, y upwards from the baseline. What a library cannot do
 *  is thrown as a DrawingFailure. */
class FontFile {
  public:
    /** Throws `missing` where the file is not there or is no font. */
    FontFile(const std::filesystem::path& path, const DrawingProblem& missing);
    FontFile(const FontFile&) = delete;
    FontFile& operator=(const FontFile&) = delete;
    ~FontFile();

    /** Sets the height axis, in per cent; false where the font has none. */
    bool SetBarHeight(double percent);

    /** The glyph of a character, 0 where there is none. */
    unsigned int GlyphOf(char32_t character) const;
    /** The glyph's larger form, or itself. */
    unsigned int LargerOf(unsigned int glyph) const;
    double AdvanceOf(unsigned int glyph) const;
    Outline OutlineOf(unsigned int glyph) const;

    /** Sets it for a context, `width` and `height` of an em in the context's units. Only in its
     *  default shape. */
    void Select(cairo_t* context, double width, double height) const;

  private:
    void Load(unsigned int glyph) const;
    cairo_font_face_t* CairoFace() const;

    FT_Face file = nullptr;
    /** Made when it is first shown, and then the owner of the file: Cairo leaks the axes of a
     *  variable font, which is never shown by it. */
    mutable cairo_font_face_t* cairoFace = nullptr;
};

}  // namespace linewright
