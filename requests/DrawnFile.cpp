#include "requests/DrawnFile.h"

#include "requests/PrintedText.h"

namespace linewright {

std::string ContentOf(const DrawnBarcode& drawn, const BarcodeWish& wish, FileFormat format,
                      ExportOptions options) {
    options.data = PrintedText(drawn.outcome, wish);
    options.title = std::string(drawn.outcome.type->shortName) + ' ' + options.data;
    return FileOf(*drawn.drawing, format, options);
}

}  // namespace linewright
