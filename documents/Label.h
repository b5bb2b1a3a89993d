#pragma once

#include <string>
#include <vector>

#include "documents/Layout.h"
#include "render/BarcodeDrawing.h"
#include "requests/DrawnBarcode.h"

namespace linewright {

/** How high a line of text is, and where its baseline is, in sizes. */
inline constexpr double kLineHeight = 1.2;
inline constexpr double kLineBaseline = 0.96;

/** A room on a label, in points from the label's upper left corner. */
struct LabelBox {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

/** One line of text; its line of the layout says how it is set. */
struct LabelText {
    /** UTF-8 that XML can hold. */
    std::string text;
    /** Which of the layout's lines it is. */
    std::size_t line;
    LabelBox box;
};

/** A record as it is set. */
struct Label {
    const BarcodeType* type;
    const BarcodeDrawing* drawing;
    /** The string as text, UTF-8. */
    std::string barcode;
    /** The drawing, with its quiet zones. */
    LabelBox symbol;
    /** The line of the string, from where it begins to the symbol's right side. */
    LabelBox string;
    double baseline;
    /** From the highest to the lowest. */
    std::vector<LabelText> texts;
};

/** Whether lines stand beside the barcode. */
bool HasTextBeside(const Layout& layout);
/** Where on a label a layout's lines stand that are not the barcode. */
LabelBox TextColumn(const Layout& layout);

/** A label and what was cut on it. */
struct ComposedLabel {
    Label label;
    std::vector<DrawingWarning> warnings{};
};

/** Sets a barcode and, for each of the layout's lines, what a record says there: no text, or one or
 *  more below one another. The drawing is borrowed. Throws DrawingFailure where it does not fit. */
ComposedLabel Compose(const Layout& layout, Fonts& fonts, const DrawnBarcode& drawn,
                      const std::vector<std::vector<std::string>>& lines);

}  // namespace linewright
