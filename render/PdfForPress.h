#pragma once

#include <string>

#include "render/Export.h"

namespace linewright {

/** How a page with one barcode is made of one with its text. */
struct PressPage {
    ExportOptions options;
    /** What is seen, as content of the page; the text is invisible then. "" where the text is it.
     */
    std::string paths;
};

/**
 * A PDF file of Cairo's, made fit for barcodes. Colours of which red, green and blue are equal are
 * in DeviceGray (a press may print black in RGB with all four inks), and the widths of our fonts'
 * glyphs are exact (Cairo cuts them to thousandths of the size, so that bars would drift). A page
 * with one barcode prints over what lies below it, in the ink that is asked for, and copies as its
 * data. So many of the last pages come to stand first. Throws a DrawingFailure.
 */
std::string PdfForPress(const std::string& pdf, const std::string& title,
                        const PressPage* press = nullptr, int lastPagesFirst = 0);

}  // namespace linewright
