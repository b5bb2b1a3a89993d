#pragma once

#include <memory>
#include <string>
#include <vector>

#include "render/BarcodeDrawing.h"

namespace linewright {

class CairoPage;

enum class Paper { kA4, kLetter };

/** One barcode of a sheet. Texts are UTF-8, a line each; what is too long for its place is cut. */
struct SheetEntry {
    const BarcodeDrawing& drawing;
    /** In bold. */
    std::string title;
    std::vector<std::string> lines;
};

/** A PDF of several barcodes a page, each at its size or, where it is wider than the page allows,
 * as much smaller as it must be, which its last line then says. Ticks show where the quiet zones
 * end. Pages are painted as they fill, so that the number of barcodes does not matter to the
 * memory. Throws a DrawingFailure. */
class Sheet {
  public:
    /** The fonts must outlive it. */
    Sheet(Fonts& runFonts, Paper paper, std::string sheetTitle);
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;
    ~Sheet();

    /** Two narrow entries stand beside each other, a wide one alone. */
    void Add(const SheetEntry& entry);

    /** The file, with these lines on its first page, or on as many as they take. To be called once,
     *  as the last. */
    std::string Finish(const std::vector<std::string>& firstLines);

  private:
    void Show(const SheetEntry& entry, double x, double top, double width, double scale);
    void ShowLine(const std::string& text, double x, double baseline, double size, double width,
                  bool isBold = false);
    void EndPage(const std::string& foot);

    Fonts& fonts;
    double pageWidth;
    double pageHeight;
    std::string title;
    std::string file;
    std::unique_ptr<CairoPage> page;
    int pages = 0;
    double y;
    double rowHeight = 0;
    bool isRightFree = false;
};

}  // namespace linewright
