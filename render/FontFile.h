#pragma once

#include <filesystem>
#include <memory>

#include "render/CairoContext.h"
#include "render/DrawingFailure.h"
#include "render/Shapes.h"

namespace linewright {

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
    /** What the libraries that read fonts have of it. */
    struct Face;
    std::unique_ptr<Face> face;
};

}  // namespace linewright
