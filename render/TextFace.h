#pragma once

#include <string>
#include <vector>

#include "render/CairoContext.h"
#include "render/FontFile.h"

namespace linewright {

/** Text of one line, set in a face, at the baseline's start. */
struct TextLine {
    std::vector<PlacedGlyph> glyphs;
    double width = 0;
};

/** Where the face lies; another one that stands in for it is none. Throws a DrawingFailure where it
 *  is not there. */
std::filesystem::path TextFaceFile(bool isBold);
/** What is wrong where it cannot be had. */
DrawingProblem MissingTextFace();

/** The face for text that a barcode font does not print: DejaVu Sans Mono, and no other one in its
 *  place, so that the same drawing has the same text on every machine. */
class TextFace {
  public:
    explicit TextFace(bool isBold);

    /** Sets UTF-8 text at a size. */
    TextLine Set(const std::string& text, double size) const;
    /** The text or, where it is wider than `width`, as much of it as fits with "…" behind. */
    TextLine SetWithin(const std::string& text, double size, double width) const;

    /** Shows a line that was set at this size. */
    void Show(cairo_t* context, const TextLine& line, double size, double x, double y) const;
    /** Adds the line's outline. */
    void AddTo(Outline& outline, const TextLine& line, double size, double x, double y) const;

  private:
    TextLine Set(const std::u32string& characters, double size) const;

    FontFile file;
};

}  // namespace linewright
