#pragma once

#include <filesystem>

#include "render/FontFile.h"
#include "render/Shapes.h"
#include "types/BarcodeFace.h"

namespace linewright {

/** A glyph in modules, y downwards from the baseline. */
struct BarcodeGlyph {
    unsigned int index = 0;
    double advance = 0;
    std::vector<Rectangle> bars{};
    /** Digits for people. */
    Outline text{};
};

/** A barcode font from its file, with its bars at one height. */
class BarcodeFont {
  public:
    /** The height is in per cent, 25 to 400. Throws a DrawingFailure when the file is not there or
     *  is no such font. */
    BarcodeFont(const std::filesystem::path& folder, const BarcodeFace& barcodeFace,
                double heightPercent);

    /** The glyph of a byte of a font string; `isLarge` prefers the larger outer digit. */
    BarcodeGlyph GlyphOf(unsigned char byte, bool isLarge) const;

    /** Of the bars that carry data, in modules. */
    double BarHeight() const { return barHeight; }
    /** Sets the font, which prints no text or has its usual height, for a context of which a unit
     * is a module. */
    void Select(cairo_t* context) const;

  private:
    const BarcodeFace& face;
    double barHeight;
    /** Where the font prints digits another height takes the variable one. */
    bool isStatic;
    /** A font without text is set as much higher as its bars are to be. */
    double stretch;
    FontFile file;
};

}  // namespace linewright
