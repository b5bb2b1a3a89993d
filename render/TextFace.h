#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "render/CairoContext.h"
#include "render/FontFile.h"

namespace linewright {

/** Where the face for text lies; another one that stands in for it is none. Throws a DrawingFailure
 *  where it is not there. */
std::filesystem::path TextFaceFile(bool isBold);
/** Where a TrueType face with a character lies, as like the one for text as there is one. */
std::optional<std::filesystem::path> OtherTextFaceFile(bool isBold, char32_t character);
/** What is wrong where the face for text cannot be had. */
DrawingProblem MissingTextFace();

/** Text of one line, set in a face that it must not outlive: its glyphs from the baseline's start.
 */
struct TextLine {
    struct Glyph {
        const FontFile* file;
        unsigned int index;
        double x;
    };
    std::vector<Glyph> glyphs;
    double width = 0;
};

/** The face for text that a barcode font does not print: DejaVu Sans Mono, and no other one in its
 *  place, so that the same drawing has the same text on every machine. Characters that it lacks, as
 *  those of Japanese, come from another TrueType face of the system, if one has them. */
class TextFace {
  public:
    explicit TextFace(bool isBoldFace);

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
    const FontFile& FileWith(char32_t character) const;

    bool isBold;
    FontFile file;
    /** Other faces by their files, as they are first wanted. */
    mutable std::map<std::filesystem::path, FontFile> others;
};

}  // namespace linewright
