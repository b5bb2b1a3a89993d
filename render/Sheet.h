#pragma once

#include <optional>
#include <string>
#include <vector>

#include "render/BarcodeDrawing.h"

namespace linewright {

/** One barcode of a sheet. Texts are UTF-8, a line each; what is too long for its place is cut. */
struct SheetEntry {
    /** None leaves the place for the bars out. */
    std::optional<BarcodeDrawing> drawing;
    /** In bold. */
    std::string title;
    std::vector<std::string> lines;
};

/** A PDF of A4 pages, several barcodes a page, each at its size or, where it is wider than the page
 *  allows, as much smaller as it must be, which its last line then says. Entries without a drawing
 *  are as wide as the page. */
std::string SheetPdf(const std::string& title, const std::vector<SheetEntry>& entries);

}  // namespace linewright
