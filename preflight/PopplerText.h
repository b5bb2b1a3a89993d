#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "preflight/Page.h"

namespace linewright {

// What poppler's programs print.

struct PageSize {
    /** In points, as the page is shown. */
    double width = 0;
    double height = 0;
};

struct PdfFacts {
    int pages = 0;
    /** Of the pages that were asked for, in their order. */
    std::vector<PageSize> sizes;
};

/** Reads what pdfinfo says; none where it does not tell the number of pages. */
std::optional<PdfFacts> ReadPdfInfo(std::string_view text);

/** Reads the texts of pdftohtml's XML of one page that is `width` mm wide; of what is no such
 *  thing none. */
std::vector<PlacedText> ReadPlacedTexts(std::string_view xml, double width);

/** Takes a picture apart that pdftoppm wrote (PPM, a byte a colour): its grey and its red; false
 *  for what is none. */
bool ReadPpm(std::string_view ppm, GreyRaster& grey, GreyRaster& red);

}  // namespace linewright
