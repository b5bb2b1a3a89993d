#pragma once

#include <optional>

namespace linewright {

/** A length in points, or in X-dimensions of the barcode that it belongs to. */
struct Length {
    double number;
    bool isInX = false;

    double Points(double xDimension) const { return isInX ? number * xDimension : number; }
};

/** How a barcode is to be drawn; what is not wished for is as its type has it. */
struct DrawingWish {
    /** In points. */
    std::optional<double> xDimension{};
    std::optional<Length> height{};
    std::optional<Length> quietZone{};
    /** How much narrower each bar is. */
    std::optional<Length> barWidthReduction{};
    /** Data below the bars; where nothing is said, if the font prints none. */
    std::optional<bool> isTextWanted{};
    /** Of the device; the bars end on its dots. */
    std::optional<double> dotsPerInch{};
    /** Whether the nearest X-dimension that has whole dots will do. */
    bool isFitted = false;
    bool hasBearerBars = false;
    bool hasMarginMarks = false;
};

}  // namespace linewright
