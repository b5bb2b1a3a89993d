#pragma once

#include <string>

namespace linewright {

/**
 * A PDF file of Cairo's, made fit for barcodes. Colours of which red, green and blue are equal are
 * in DeviceGray (a press may print black in RGB with all four inks), and the widths of our fonts'
 * glyphs are exact (Cairo cuts them to thousandths of the size, so that bars would drift).
 */
std::string PdfForPress(const std::string& pdf);

}  // namespace linewright
