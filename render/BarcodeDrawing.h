#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "render/CairoContext.h"
#include "render/DrawingFailure.h"
#include "render/DrawingWarning.h"
#include "render/Fonts.h"
#include "render/GreyRaster.h"
#include "render/Shapes.h"
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
    /** Bars end on the dots of this resolution. */
    std::optional<double> dotsPerInch = std::nullopt;
    /** Takes the nearest X-dimension that has whole dots, where there is a resolution. */
    bool isFitted = false;
    /** A frame around bars and quiet zones that keeps the press plate's pressure even. */
    bool hasBearerBars = false;
    /** "<" and ">" at the ends of the quiet zones, where there is no digit. */
    bool hasMarginMarks = false;
};

/**
 * A font string as bars and digits, with white around it. Coordinates are modules from the
 * picture's upper left corner.
 */
class BarcodeDrawing {
  public:
    /** Throws a DrawingFailure when a font cannot be read or a wish not be had. */
    static BarcodeDrawing Make(Fonts& fonts, const BarcodeType& type, std::string_view fontString,
                               const DrawingOptions& options);

    double Width() const { return width; }
    double Height() const { return height; }
    /** The width of a module in points. */
    double Module() const { return module; }
    /** Of the bars that carry data, in points; 0 without bars. */
    double BarHeight() const { return barHeight; }
    /** The size of the font in points; 0 without a font. */
    double FontSize() const;
    /** The resolution that it was made for. */
    std::optional<double> DotsPerInch() const { return dotsPerInch; }
    /** Whether bars' sides lie on halves of modules (the ratio 2.5). */
    bool HasHalfModules() const { return hasHalfModules; }
    /** Whether the font, set as text, gives these bars. */
    bool IsFontText() const { return isFontText; }
    const std::vector<DrawingWarning>& Warnings() const { return warnings; }

    /** What is black, with bars' sides on dots where it was made for a resolution. */
    Shapes Drawn() const;
    /** The same for any number of dots a module: sides on dots, each bar narrower by the nearest
     *  whole number of them. */
    Shapes InDots(double dotsPerModule) const;

    /** Shows the font string in its font, and the text, on a context of which a unit is a module.
     */
    void ShowText(cairo_t* context) const;

    /** Paints it, black on what is there, with its corner at (x, y) into a picture of native-endian
     *  0xAARRGGBB pixels (colours multiplied by alpha) that stays the caller's. `rowBytes` is the
     *  distance of its rows, a multiple of 4. */
    void PaintArgb(std::uint32_t* pixels, int pictureWidth, int pictureHeight, int rowBytes,
                   double pixelsPerModule, double x, double y) const;

    /** Bars are black and white alone; text has greys. */
    GreyRaster Raster(double pixelsPerModule) const;

  private:
    BarcodeDrawing() = default;
    void FindModule(const BarcodeType& type, const DrawingOptions& options);
    void PlaceGlyphs(const BarcodeFont& shaped, const BarcodeType& type,
                     std::string_view fontString, const DrawingOptions& options);
    void PlaceBearerBars();
    void PlaceMarginMarks(const BarcodeType& type, double baseline);
    void PlaceText(const BarcodeType& type, const std::string& shownText);
    void CheckSize() const;
    Shapes InModules() const;

    /** The one to set the font string in as text. */
    std::shared_ptr<const BarcodeFont> font;
    const BarcodeFace* face = nullptr;
    std::vector<PlacedGlyph> glyphs;
    /** Without the reduction. */
    std::vector<Rectangle> bars;
    std::vector<Rectangle> bearerBars;
    Outline outline;
    std::shared_ptr<const TextFace> textFace;
    TextLine text;
    double textSize = 0;
    double textX = 0;
    double textY = 0;
    double width = 0;
    double height = 0;
    double module = 0;
    double barHeight = 0;
    /** In modules. */
    double reduction = 0;
    std::optional<double> dotsPerInch;
    bool hasHalfModules = false;
    bool isFontText = false;
    std::vector<DrawingWarning> warnings;
};

}  // namespace linewright
