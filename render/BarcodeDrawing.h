#pragma once

#include <cairo/cairo.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "render/BarcodeFont.h"
#include "render/GreyRaster.h"
#include "types/BarcodeType.h"

namespace linewright {

/** How a drawing departs from its type's row. Lengths are in points. */
struct DrawingOptions {
    std::optional<double> xDimension = std::nullopt;
    /** Of the bars; within a quarter and four times of the font's. */
    std::optional<double> height = std::nullopt;
    /** White on both sides of the bars. */
    std::optional<double> quietZone = std::nullopt;
    /** How much narrower each bar is, in per cent of the narrowest one, 0 to 25. */
    double barWidthReduction = 0;
    /** UTF-8 for below the bars; "" for none. */
    std::string text = {};
};

/**
 * A font string set in its font, with white around it. Coordinates are modules from the picture's
 * upper left corner; width and height are whole modules. The picture can be painted at any size,
 * any number of times.
 */
class BarcodeDrawing {
  public:
    /** How a page gets the bars: as text in the font, or as filled outlines. */
    enum class Form { kText, kPaths };

    /** None, with the reason in `problem`, when a font cannot be read or a height not be had.
     *  `fonts` is the folder that holds the fonts' files. */
    static std::optional<BarcodeDrawing> Make(const std::filesystem::path& fonts,
                                              const BarcodeType& type, std::string_view fontString,
                                              const DrawingOptions& options,
                                              DrawingProblem& problem);

    int Width() const { return width; }
    int Height() const { return height; }
    /** The width of a module in points. */
    double Module() const { return module; }
    /** The size of the font in points; 0 without a font. */
    double FontSize() const;
    /** The form that exports give the bars unless one needs outlines. */
    Form NaturalForm() const { return form; }
    /** Whether bars' sides lie on halves of modules (the ratio 2.5). */
    bool HasHalfModules() const { return hasHalfModules; }

    /** Paints it black onto a context of which a unit is a module. */
    void Paint(cairo_t* context, Form paintedForm) const;

    /** Paints it, black on what is there, with its corner at (x, y) into a picture of native-endian
     *  0xAARRGGBB pixels (colours multiplied by alpha) that stays the caller's. `rowBytes` is the
     *  distance of its rows, a multiple of 4. */
    void PaintArgb(std::uint32_t* pixels, int pictureWidth, int pictureHeight, int rowBytes,
                   double pixelsPerModule, double x, double y) const;

    /** With whole pixels a module every bar's sides lie on pixels' sides; where there are half
     *  modules the number must be even. */
    GreyRaster Raster(int pixelsPerModule) const;

  private:
    BarcodeDrawing() = default;
    void PlaceGlyphs(const BarcodeType& type, std::string_view fontString,
                     const DrawingOptions& options);
    void PlaceText(const BarcodeType& type, const std::string& shownText);

    std::shared_ptr<const BarcodeFont> font;
    const BarcodeFace* face = nullptr;
    std::vector<cairo_glyph_t> glyphs;
    std::string text;
    double textSize = 0;
    double textX = 0;
    double textY = 0;
    int width = 0;
    int height = 0;
    double module = 0;
    Form form = Form::kText;
    bool hasHalfModules = false;
};

}  // namespace linewright
