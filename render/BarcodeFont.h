#pragma once

#include <cairo/cairo.h>
#include <freetype/freetype.h>

#include <filesystem>
#include <memory>
#include <string>

#include "render/DrawingProblem.h"
#include "types/BarcodeFace.h"

namespace linewright {

/** How a font's bars depart from the static font's. */
struct FontShape {
    /** Height of the bars in per cent, 25 to 400. */
    double heightPercent = 100;
    /** Narrower bars in per cent of the narrowest one, 0 to 25. */
    double reductionPercent = 0;
};

/** Everything of a glyph in modules, y upwards from the baseline. */
struct GlyphBox {
    unsigned long index;
    double advance;
    double left, bottom, right, top;
};

/** A barcode font from its file, in one shape. */
class BarcodeFont {
  public:
    /** None, with the reason in `problem`, when the file is not there or is no font. */
    static std::unique_ptr<const BarcodeFont> Load(const std::filesystem::path& folder,
                                                   const BarcodeFace& face, const FontShape& shape,
                                                   DrawingProblem& problem);
    BarcodeFont(const BarcodeFont&) = delete;
    BarcodeFont& operator=(const BarcodeFont&) = delete;
    ~BarcodeFont();

    /** The glyph of a byte of a font string; `isLarge` prefers the larger outer digit. */
    GlyphBox GlyphOf(unsigned char byte, bool isLarge) const;

    /** Whether the bars come from the variable font, which are drawn as paths. */
    bool IsVariable() const { return shape.heightPercent != 100 || shape.reductionPercent != 0; }

    /** Sets the font for a context of which a unit is a module. For fonts that are not variable. */
    void Select(cairo_t* context) const;
    /** Adds the outline of a placed glyph to the path of such a context. */
    void AddPath(cairo_t* context, const cairo_glyph_t& glyph) const;

  private:
    /** Modules for a font's unit. */
    double ModulesOf(FT_Pos units) const;
    BarcodeFont(FT_Face file, const BarcodeFace& face, const FontShape& axes, double stretch);

    FT_Face file;
    /** None of a variable font. */
    cairo_font_face_t* cairoFace = nullptr;
    const BarcodeFace& face;
    /** What the axes are set to. */
    FontShape shape;
    /** A font without text is set as much higher as its bars are to be. */
    double stretch;
};

}  // namespace linewright
